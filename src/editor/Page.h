#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>

class Document;

// A tab of the window: shows one document of its kind. The window knows pages through this interface
// only; each page keeps its own controls and pushes every edit as a command on the document's stack.
class Page : public QWidget
{
    Q_OBJECT

public:
    explicit Page(QWidget* parent = nullptr);
    ~Page() override;

    // Lower-case suffixes of the files this page opens ("mes", "dlg").
    virtual QStringList suffixes() const = 0;
    // The file-dialog filter of those files ("Message files (*.mes)").
    virtual QString fileFilter() const = 0;
    // Reads path into a new document; null and the reason when nothing of it can be shown. A file that
    // can be shown in part loads, with its document's damage() saying what is missing.
    std::unique_ptr<Document> load(const QString& path, QString& error) const;
    // The same from the bytes of a file named path (a file inside an archive has no file of its own).
    virtual std::unique_ptr<Document> fromBytes(const QString& path, const QByteArray& bytes,
                                                QString& error) const = 0;

    Document* document() const { return shown.get(); }
    // Asks to save the shown document's changes first (Save / Discard / Cancel), then loads path and
    // shows it; false when the user cancelled or the file could not be read (after saying why).
    bool openFile(const QString& path);
    // Puts a loaded document on the page without asking (the caller has asked); null empties the page.
    void setDocument(std::unique_ptr<Document> document);
    // Saves in place (Save As when the document has no path yet); false when cancelled or failed.
    bool save();
    // Asks for a new file name and saves there; a page whose files are named by rule asks its own way.
    virtual bool saveAs();
    // Asks for a file of this page's kind and opens it.
    void browse();
    // The folder file dialogs start in when no document is open.
    void setStartFolder(const QString& folder) { startFolder = folder; }
    // Whether Save in place asks "Overwrite NAME?" first (on by default).
    void setConfirmOverwrite(bool confirm) { confirmOverwrite = confirm; }
    // Whether unsaved changes are asked about before they would be dropped (on by default; off drops them).
    void setConfirmAbandon(bool confirm) { confirmAbandon = confirm; }
    // "Save changes to NAME?" for the shown document, as the abandon setting says: true when the work
    // was saved, discarded or there was none; false when the user cancelled or the save failed.
    bool settle();
    // Puts what a form still holds into the document as a step of its own. Undo and redo call this
    // first: they would otherwise drop those edits when the page refreshes from the document.
    void applyPendingEdits() { (void)commitPending(); }
    // The window puts the page in a frame that names the file and offers Save and Save As; the page's
    // own controls for the same are then hidden, so that each action has one place.
    void setFramed();


signals:
    // The page shows another document (or none); the window moves its undo group and marks.
    void documentReplaced(Document* document);

protected:
    // Fill the controls from document() (null: clear them). Called after every replacement.
    virtual void showDocument() = 0;
    // A page whose form holds changes not yet in the document applies them here; called before the
    // document is asked whether it is modified, saved or replaced. False: the user kept them out (Cancel,
    // or they could not be applied), so the save or replacement waits.
    virtual bool commitPending() { return true; }
    // Controls repeating what the frame shows: the file's name, its modified mark, Open, Save, Save As.
    virtual QList<QWidget*> fileControls() const { return {}; }
    bool isFramed() const { return framed; }

private:
    QString dialogFolder() const;

    std::unique_ptr<Document> shown;
    QString startFolder;
    bool confirmOverwrite = true;
    bool confirmAbandon = true;
    bool framed = false;
};
