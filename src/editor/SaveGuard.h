#pragma once

#include <QString>

class Document;
class QWidget;

// The questions around saving, asked the same way from every page and from the window: whether to save
// changes before they would be lost, whether a save may lose unedited bytes, and why a save failed.
class SaveGuard
{
public:
    // "Save changes to NAME?" for a modified document: true when it was saved or discarded (or was not
    // modified), false when the user cancelled or the save failed.
    static bool settle(QWidget* parent, Document* document, const QString& filter);
    // Saves to path after the document's own loss question; says why when it fails.
    static bool save(QWidget* parent, Document* document, const QString& path);
    // Asks for a new path (starting at the document's own) and saves there.
    static bool saveAs(QWidget* parent, Document* document, const QString& filter, const QString& folder);
    // Saves in place, or asks for a path when the document has none.
    static bool saveInPlace(QWidget* parent, Document* document, const QString& filter, const QString& folder);
};
