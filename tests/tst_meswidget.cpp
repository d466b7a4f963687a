// The message editor page, driven offscreen: the table over the document, the text box, the source
// line, undo of every edit, encodings that would damage a file, and the file on disk after each save.
#include "Document.h"
#include "EncodingBox.h"
#include "EncodingChecks.h"
#include "FormatChecks.h"
#include "MesDocument.h"
#include "MesWidget.h"
#include "ScriptedAnswerer.h"
#include "UndoChecks.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QUndoStack>
#include <QWheelEvent>
#include <QtTest>

#include <memory>

namespace {

const QByteArray MESSAGES = QByteArrayLiteral("// Test items\r\n"
                                              "{100}{Rusty dagger}\r\n"
                                              "{101}{Steam pistol}  // needs bullets\r\n"
                                              "{110}{A dagger.\r\n\tNotched.}\r\n"
                                              "{x}{broken}\r\n");

const QByteArray DIALOGUE = QByteArrayLiteral("{1}{Hello.}{}{5}{}{10}{}\r\n"
                                              "{10}{Bye.}{1}{-3}{qu 5 2}{0}{} // last\r\n");

QByteArray cp1251(const QString& text)
{
    return QTextCodec::codecForName("Windows-1251")->fromUnicode(text);
}

} // namespace

class TestMesWidget : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;
    std::unique_ptr<MesWidget> page;

    QString path(const QString& name) const { return dir.filePath(name); }

    template <typename T>
    T* child(const char* name) const
    {
        T* widget = page->findChild<T*>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no child %s", name);
        return widget;
    }

    QTableView* table() const { return child<QTableView>("table"); }
    QAbstractItemModel* model() const { return table()->model(); }
    QPlainTextEdit* itemView() const { return child<QPlainTextEdit>("itemView"); }

    QString open(const QString& name, const QByteArray& bytes)
    {
        FormatChecks::writeFile(path(name), bytes);
        if (!page->openFile(path(name)))
            qFatal("could not open %s", qPrintable(name));
        return path(name);
    }

    void selectCell(int row, int column) { table()->setCurrentIndex(model()->index(row, column)); }

private slots:
    // The game's code pages first, then each codec once under one name, sorted.
    void encodingListPutsTheGamesCodePagesFirst()
    {
        const QStringList names = EncodingBox::encodingList();
        QCOMPARE(names.mid(0, 4), QStringList({"windows-1251", "windows-1252", "windows-1250", "UTF-8"}));
        QSet<QByteArray> codecs;
        for (const QString& name : names) {
            const QByteArray codec = QTextCodec::codecForName(name.toLatin1())->name();
            QVERIFY2(!codecs.contains(codec), qPrintable(name));
            codecs.insert(codec);
        }
        QVERIFY(names.contains(QStringLiteral("KOI8-R")));
        const QStringList rest = names.mid(7);
        QVERIFY(std::is_sorted(rest.begin(), rest.end(), [](const QString& a, const QString& b) {
            return QString::compare(a, b, Qt::CaseInsensitive) < 0;
        }));
    }

    void initTestCase() { QVERIFY(dir.isValid()); }
    void init() { page = std::make_unique<MesWidget>(); }
    void cleanup() { page.reset(); }

    void tableShowsTheDocument()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        QCOMPARE(model()->rowCount(), 4);
        QCOMPARE(model()->columnCount(), 3);
        QCOMPARE(model()->data(model()->index(1, 0)).toString(), QStringLiteral("101"));
        QCOMPARE(model()->data(model()->index(1, 1)).toString(), QStringLiteral("Steam pistol"));
        QCOMPARE(model()->data(model()->index(1, 2)).toString(), QStringLiteral("  // needs bullets"));
        QCOMPARE(child<QPlainTextEdit>("editCommentary")->toPlainText(), QStringLiteral("// Test items\n"));
        // The row that cannot be read shows its text and cannot be edited.
        QCOMPARE(model()->data(model()->index(3, 1)).toString(), QStringLiteral("{x}{broken}"));
        QVERIFY(!(model()->flags(model()->index(3, 1)) & Qt::ItemIsEditable));
        QVERIFY(!(model()->flags(model()->index(0, 0)) & Qt::ItemIsEditable));
        QVERIFY2(page->document()->damage().contains(QStringLiteral("entry 4 (line 6)")), qPrintable(page->document()->damage()));
    }

    void dialogueAsTable()
    {
        open(QStringLiteral("talk.dlg"), DIALOGUE);
        QCOMPARE(model()->columnCount(), 8);
        QCOMPARE(model()->data(model()->index(1, 4)).toString(), QStringLiteral("qu 5 2"));
    }

    void everyEditUndoes_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("steps");
        QTest::newRow("cell text") << "cell" << 1;
        QTest::newRow("comment") << "comment" << 1;
        QTest::newRow("typing in the text box merges") << "typing" << 1;
        QTest::newRow("two cells") << "two cells" << 2;
        QTest::newRow("header") << "header" << 1;
    }

    void everyEditUndoes()
    {
        QFETCH(QString, kind);
        QFETCH(int, steps);
        open(QStringLiteral("items.mes"), MESSAGES);
        const auto edit = [&] {
            if (kind == QLatin1String("cell")) {
                model()->setData(model()->index(0, 1), QStringLiteral("Oil lantern"));
            } else if (kind == QLatin1String("comment")) {
                model()->setData(model()->index(0, 2), QStringLiteral(" // new"));
            } else if (kind == QLatin1String("typing")) {
                selectCell(0, 1);
                itemView()->setFocus();
                itemView()->moveCursor(QTextCursor::End);
                QTest::keyClicks(itemView(), QStringLiteral(", old"));
            } else if (kind == QLatin1String("two cells")) {
                model()->setData(model()->index(0, 1), QStringLiteral("One"));
                model()->setData(model()->index(1, 1), QStringLiteral("Two"));
            } else {
                child<QPlainTextEdit>("editCommentary")->setPlainText(QStringLiteral("// Changed\n"));
            }
        };
        QVERIFY(checkUndoRedo(*page->document(), edit, steps));
    }

    void sourceLineFollowsTheCell()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        selectCell(0, 1);
        QCOMPARE(child<QLineEdit>("completeLine")->text(), QStringLiteral("{100}{Rusty dagger}\n"));
        model()->setData(model()->index(0, 1), QStringLiteral("Oil lantern"));
        QCOMPARE(child<QLineEdit>("completeLine")->text(), QStringLiteral("{100}{Oil lantern}\n"));
        QCOMPARE(itemView()->toPlainText(), QStringLiteral("Oil lantern"));
        QCOMPARE(page->document()->undoStack()->undoText(), QStringLiteral("Edit text of 100"));
        page->document()->undoStack()->undo();
        QCOMPARE(child<QLineEdit>("completeLine")->text(), QStringLiteral("{100}{Rusty dagger}\n"));
    }

    void savingTwiceWritesTheSameBytes()
    {
        const QString file = open(QStringLiteral("items.mes"), MESSAGES);
        model()->setData(model()->index(0, 1), QStringLiteral("Oil lantern"));
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::Yes << QMessageBox::Yes;
        QVERIFY(page->save());
        const QByteArray first = FormatChecks::readFile(file);
        QVERIFY(first.contains("{100}{Oil lantern}\r\n"));
        QVERIFY(first.startsWith("// Test items\r\n{100}"));
        model()->setData(model()->index(1, 1), QStringLiteral("Pistol"));
        QVERIFY(page->save());
        QVERIFY(FormatChecks::readFile(file).startsWith("// Test items\r\n{100}"));
        QVERIFY(!page->document()->isModified());
        QVERIFY(!child<QPushButton>("saveButton")->isEnabled());
    }

    void declinedOverwriteWritesNothing()
    {
        const QString file = open(QStringLiteral("items.mes"), MESSAGES);
        model()->setData(model()->index(0, 1), QStringLiteral("Oil lantern"));
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::No;
        QTest::mouseClick(child<QPushButton>("saveButton"), Qt::LeftButton);
        QCOMPARE(answers.last(QStringLiteral("question"))->text, QStringLiteral("Overwrite items.mes?"));
        QCOMPARE(FormatChecks::readFile(file), MESSAGES);
        QVERIFY(page->document()->isModified());
    }

    void saveAsShowsTheNewFile()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        model()->setData(model()->index(0, 1), QStringLiteral("Oil lantern"));
        ScriptedAnswerer answers;
        answers.fileNames << path(QStringLiteral("copy.mes"));
        QTest::mouseClick(child<QPushButton>("saveAsButton"), Qt::LeftButton);
        QVERIFY(answers.last(QStringLiteral("save"))->text.startsWith(path(QStringLiteral("items.mes"))));
        QCOMPARE(page->document()->path(), path(QStringLiteral("copy.mes")));
        QVERIFY(FormatChecks::readFile(path(QStringLiteral("copy.mes"))).contains("{100}{Oil lantern}"));
        QCOMPARE(FormatChecks::readFile(path(QStringLiteral("items.mes"))), MESSAGES);
    }

    void failedSaveKeepsTheEdits()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        model()->setData(model()->index(0, 1), QStringLiteral("Oil lantern"));
        ScriptedAnswerer answers;
        answers.fileNames << dir.filePath(QStringLiteral("missing/folder/x.mes"));
        QVERIFY(!page->saveAs());
        QVERIFY(answers.last(QStringLiteral("message"))->text.startsWith(QStringLiteral("Could not save")));
        QVERIFY(page->document()->isModified());
        QCOMPARE(page->document()->path(), path(QStringLiteral("items.mes")));
    }

    void windows1251ReadAsUtf8IsNotDamaged()
    {
        const QByteArray russian = QByteArrayLiteral("{1}{") + cp1251(QStringLiteral("Меч")) + "}\r\n{2}{"
                                   + cp1251(QStringLiteral("Щит")) + "}\r\n{3}{Shield}\r\n";
        const QString file = open(QStringLiteral("ru.mes"), russian);
        // The strip over the page says so (EncodingChecks); the damage banner is for the entries.
        QVERIFY(page->document()->damage().isEmpty());
        model()->setData(model()->index(2, 1), QStringLiteral("Buckler"));
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::Yes << QMessageBox::Cancel;
        QVERIFY(!page->save());
        QVERIFY2(answers.last(QStringLiteral("question"))->text.startsWith(
            QStringLiteral("Saving in UTF-8 would change 2 lines that were not edited")), qPrintable(answers.last(QStringLiteral("question"))->text));
        QCOMPARE(FormatChecks::readFile(file), russian);

        // Another encoding for a modified file asks first; Cancel keeps the file and its edit as they are.
        answers.buttons << QMessageBox::Cancel;
        child<QComboBox>("encodingSelect")->setCurrentText(QStringLiteral("windows-1251"));
        QCOMPARE(answers.last(QStringLiteral("question"))->text, QStringLiteral("Save changes to ru.mes?"));
        QCOMPARE(child<QComboBox>("encodingSelect")->currentText(), QStringLiteral("UTF-8"));
        QVERIFY(page->document()->isModified());
        // In the file's own encoding the same edit saves and every Cyrillic byte stays.
        answers.buttons << QMessageBox::Discard;
        child<QComboBox>("encodingSelect")->setCurrentText(QStringLiteral("windows-1251"));
        QCOMPARE(page->mesDocument()->codec()->name(), QByteArray("windows-1251"));
        QCOMPARE(model()->data(model()->index(0, 1)).toString(), QStringLiteral("Меч"));
        model()->setData(model()->index(2, 1), QStringLiteral("Buckler"));
        answers.buttons << QMessageBox::Yes;
        QVERIFY(page->save());
        QCOMPARE(FormatChecks::readFile(file), QByteArray(russian).replace("Shield", "Buckler"));

        // A copy saved under another name opens in the same encoding.
        answers.fileNames << path(QStringLiteral("ru-copy.mes"));
        QVERIFY(page->saveAs());
        page = std::make_unique<MesWidget>();
        QVERIFY(page->openFile(path(QStringLiteral("ru-copy.mes"))));
        QCOMPARE(page->mesDocument()->codec()->name(), QByteArray("windows-1251"));
    }

    void suggestedEncodingReadsTheFile()
    {
        const QByteArray russian = QByteArrayLiteral("// ") + cp1251(QStringLiteral("Оружие")) + "\r\n{1}{"
                                   + cp1251(QStringLiteral("Ржавый кинжал")) + "}\r\n{2}{Shield}\r\n";
        EncodingChecks::suggestionReadsTheFile([] { return std::make_unique<MesWidget>(); },
                                               path(QStringLiteral("weapons.mes")), russian, "windows-1251");
    }

    void wheelLeavesUnfocusedControlsAlone()
    {
        open(QStringLiteral("items.mes"), MESSAGES);
        page->show();
        auto* encodings = child<QComboBox>("encodingSelect");
        const QString before = encodings->currentText();
        QWheelEvent wheel(QPointF(5, 5), encodings->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(encodings, &wheel);
        QCOMPARE(encodings->currentText(), before);
    }
};

QTEST_MAIN(TestMesWidget)
#include "tst_meswidget.moc"
