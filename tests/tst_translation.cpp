// The interface in Russian: every text the window and its pages show has a Russian translation.
#include "MainWindow.h"
#include "ScriptedAnswerer.h"
#include "Translations.h"
#include "gui.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTreeWidget>
#include <QtTest>

namespace {

// English words left over: three Latin letters in a row, in a text without a Cyrillic letter. Codes,
// file names, key names and encodings are the same in both languages.
bool untranslated(QString text)
{
    static const QRegularExpression kept(QStringLiteral(
        "qtLoreka|loreka|Ctrl\\+\\S+|UTF-8|Windows-\\d+|KOI8-R|\\b[\\w.-]+\\.(mes|dlg|scr|art|aap|pro|dat)\\b|"
        "\\*\\.\\w+|\\bdata/\\w*|\\bNPC\\b|\\bPC\\b|\\bRO\\b|\\bIF\\b|\\bDO\\b|\\bTHEN\\b|\\bELSE\\b|\\b[A-Z]{2,5}\\b|"
        "Arcanum|ARCHIVE|Shift|Alt"));
    static const QRegularExpression cyrillic(QStringLiteral("\\p{Cyrillic}"));
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{3,}"));
    text.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    text.remove(kept);
    return !text.contains(cyrillic) && text.contains(word);
}

} // namespace

class TestTranslation : public QObject
{
    Q_OBJECT

private slots:
    void russianCoversTheWindow()
    {
        QVERIFY(Translations::install(QLocale(QLocale::Russian, QLocale::Russia)));
        QTemporaryDir game;
        gui::setBaseDir(QDir(game.path()));
        MainWindow window;
        window.resize(1200, 800);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QStringList english;
        const auto check = [&english](const QString& where, const QString& text) {
            if (untranslated(text))
                english.append(QStringLiteral("%1: \"%2\"").arg(where, text));
        };
        for (QAction* action : window.menuBar()->actions()) {
            check(QStringLiteral("menu"), action->text());
            if (action->menu())
                for (QAction* item : action->menu()->actions())
                    check(QStringLiteral("menu item"), item->text());
        }
        auto* tabs = window.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            check(QStringLiteral("tab"), tabs->tabText(tab));
            for (QWidget* widget : tabs->widget(tab)->findChildren<QWidget*>()) {
                if (!widget->isVisible())
                    continue;
                const QString name = widget->objectName();
                if (auto* label = qobject_cast<QLabel*>(widget))
                    check(name, label->text());
                if (auto* button = qobject_cast<QAbstractButton*>(widget))
                    check(name, button->text());
                if (auto* group = qobject_cast<QGroupBox*>(widget))
                    check(name, group->title());
                if (auto* edit = qobject_cast<QLineEdit*>(widget))
                    check(name, edit->placeholderText());
                if (auto* tree = qobject_cast<QTreeWidget*>(widget))
                    for (int column = 0; column < tree->columnCount(); ++column)
                        check(name, tree->headerItem()->text(column));
                check(name + QStringLiteral(" tip"), widget->toolTip());
            }
        }
        english.removeDuplicates();
        for (const QString& text : english)
            qInfo("not in Russian: %s", qPrintable(text));
        QVERIFY2(english.isEmpty(), qPrintable(QStringLiteral("%1 texts not in Russian").arg(english.size())));
        gui::settings.remove(QStringLiteral("Directories"));
    }
};

QTEST_MAIN(TestTranslation)
#include "tst_translation.moc"
