#pragma once

#include "GameView.h"

#include <QFont>
#include <QString>
#include <QStringList>
#include <QVector>

class QListWidget;
class QTreeWidgetItem;

// What a page's list shows of one game folder: the loose files the manager found, and every file of
// the kind an archive or the module's folder adds, each with where it comes from.
class GameListing
{
public:
    // Where an item's game path ("scr/00001x.scr") is kept; absent for a file the view does not know.
    static constexpr int GamePathRole = Qt::UserRole + 1;

    struct Entry
    {
        QString name;
        QString gamePath;
        QString source; // "arcanum1.dat", "data/ (overrides arcanum1.dat)"
        bool archived = false;
        bool overrides = false;
    };

    // folder as the manager names it ("data/scr/"); loose the names the manager listed there.
    static QVector<Entry> entries(const arcanum::GameView& view, const QString& folder, const QStringList& loose,
                                  const QStringList& suffixes);
    static void fill(QListWidget* list, const QVector<Entry>& entries);
    static void fill(QTreeWidgetItem* parent, const QVector<Entry>& entries);
    // Italic for an archived file, bold for a loose one that overrides an archived copy.
    static QFont font(const QFont& base, const Entry& entry);
    static QString toolTip(const Entry& entry);
};
