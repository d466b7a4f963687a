// The rows of tests and results and the PC and NPC line forms, driven offscreen.
#include "DialogueFileNew.h"
#include "DialogueTestsWidget.h"
#include "DlgNpcLineEditWidget.h"
#include "DlgPcLineEditWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QToolButton>
#include <QtTest>

#include <limits>

using arcanum::DialogueFileNew;
using arcanum::dlg::TestOrResultData;
using arcanum::dlg::TestOrResultType;
using arcanum::dlg::TestOrResultTypes;
namespace test = arcanum::dlg::test;
namespace result = arcanum::dlg::result;

Q_DECLARE_METATYPE(const TestOrResultType*)
Q_DECLARE_METATYPE(const TestOrResultTypes*)

namespace {

template <typename T>
T* child(const QWidget& parent, const char* name)
{
    T* widget = parent.findChild<T*>(QString::fromLatin1(name));
    if (!widget)
        qFatal("no child %s", name);
    return widget;
}

// The rows of a form's list in display order.
QList<DialogueTestsWidget*> rowsOf(const QWidget& form, const char* layoutName)
{
    QList<DialogueTestsWidget*> rows;
    QLayout* layout = child<QLayout>(form, layoutName);
    for (int i = 0; i < layout->count(); ++i)
        rows << qobject_cast<DialogueTestsWidget*>(layout->itemAt(i)->widget());
    return rows;
}

// The six items of an entry after its index, split as a file holds them.
QStringList items(const QString& entry)
{
    QString inner = entry.mid(1, entry.size() - 2);
    return inner.split(QStringLiteral("}{"));
}

DialogueFileNew::PCLinePointer pcLine(int index, const QString& entry)
{
    return DialogueFileNew::PCLinePointer(
        new DialogueFileNew::PCLine(index, items(entry), QString(), QStringLiteral("{%1}").arg(index) + entry));
}

DialogueFileNew::NPCLinePointer npcLine(int index, const QString& entry)
{
    return DialogueFileNew::NPCLinePointer(
        new DialogueFileNew::NPCLine(index, items(entry), QString(), QStringLiteral("{%1}").arg(index) + entry));
}

// Changes a text box and changes it back: the form holds a change, but every value is as before.
void touch(QPlainTextEdit* edit)
{
    edit->moveCursor(QTextCursor::End);
    QTest::keyClicks(edit, QStringLiteral("x"));
    QTest::keyClick(edit, Qt::Key_Backspace);
}

} // namespace

class TestDialogueEditorForms : public QObject
{
    Q_OBJECT

private slots:
    void moneyRowShowsUpperBound()
    {
        DialogueTestsWidget row(nullptr, 0, &test::ALL_TESTS, TestOrResultData(test::TEST_MONEY, -50));
        QCOMPARE(child<QComboBox>(row, "comboOp")->currentIndex(), 0);
        QCOMPARE(child<QComboBox>(row, "combo1")->currentText(), QStringLiteral("<="));
        QCOMPARE(child<QSpinBox>(row, "spin1")->value(), 50);
        QVERIFY(child<QSpinBox>(row, "spin2")->isHidden());
        QVERIFY(child<QComboBox>(row, "combo2")->isHidden());
        QCOMPARE(child<QSpinBox>(row, "spin1")->toolTip(), QStringLiteral("true if PC and followers have <= 50 gold"));
        QCOMPARE(*row.getCalculatedValue(), TestOrResultData(test::TEST_MONEY, -50));

        child<QSpinBox>(row, "spin1")->setValue(75);
        QCOMPARE(*row.getCalculatedValue(), TestOrResultData(test::TEST_MONEY, -75));
        QCOMPARE(child<QComboBox>(row, "combo1")->toolTip(), QStringLiteral("true if PC and followers have <= 75 gold"));
        child<QComboBox>(row, "combo1")->setCurrentIndex(0);
        QCOMPARE(*row.getCalculatedValue(), TestOrResultData(test::TEST_MONEY, 75));
    }

    void genericRowKeepsNegativeValue()
    {
        DialogueTestsWidget row(nullptr, 0, &test::ALL_TESTS, TestOrResultData(test::TEST_ALIGNMENT, -5));
        QCOMPARE(child<QComboBox>(row, "combo1")->count(), 1);
        QCOMPARE(child<QSpinBox>(row, "spin1")->value(), -5);
        QVERIFY(!child<QSpinBox>(row, "spin2")->isHidden());
        QCOMPARE(row.getCalculatedValue()->value1, -5);
        child<QSpinBox>(row, "spin2")->setValue(0); // unchanged value: no signal
        child<QSpinBox>(row, "spin1")->setValue(-6);
        child<QSpinBox>(row, "spin1")->setValue(-5);
        QVERIFY(row.isEdited());
        QCOMPARE(*row.getCalculatedValue(), TestOrResultData(test::TEST_ALIGNMENT, -5));
    }

    void switchingOpcodeKeepsLayout()
    {
        DialogueTestsWidget row(nullptr, 3, &test::ALL_TESTS, TestOrResultData(test::TEST_MONEY, 50));
        QSignalSpy edited(&row, &DialogueTestsWidget::valueEdited);
        child<QComboBox>(row, "comboOp")->setCurrentIndex(static_cast<int>(test::ALL_TESTS.indexOf(test::TEST_GLOBAL_FLAG)));
        QCOMPARE(edited.count(), 1);
        QVERIFY(child<QSpinBox>(row, "spin2")->isHidden());
        QVERIFY(!child<QComboBox>(row, "combo1")->isHidden());
        QCOMPARE(child<QComboBox>(row, "combo1")->count(), 1);
        QCOMPARE(child<QComboBox>(row, "combo1")->currentText(), QStringLiteral("arg1"));
        child<QSpinBox>(row, "spin2")->setValue(7);
        QCOMPARE(*row.getCalculatedValue(), TestOrResultData(test::TEST_GLOBAL_FLAG, 50, 0));
        // Tool tips still come from the money test.
        QCOMPARE(child<QSpinBox>(row, "spin1")->toolTip(), QStringLiteral("true if PC and followers have arg1 50 gold"));
    }

    void typeOutsideTheChoices()
    {
        DialogueTestsWidget row(nullptr, 0, &result::ALL_NPC_RESULTS,
                                TestOrResultData(result::RESULT_EXPERT_TRAINING, 4, 9));
        QCOMPARE(child<QComboBox>(row, "comboOp")->currentIndex(), -1);
        QCOMPARE(child<QComboBox>(row, "comboOp")->count(), 34);
        QCOMPARE(*row.getCalculatedValue(), TestOrResultData(result::RESULT_EXPERT_TRAINING, 4, 9));
        child<QSpinBox>(row, "spin1")->setValue(5);
        QCOMPARE(*row.getCalculatedValue(), TestOrResultData(result::RESULT_EXPERT_TRAINING, 5, 9));
    }

    void newRowAndButtons()
    {
        DialogueTestsWidget row(nullptr, 2, &result::ALL_PC_RESULTS);
        QCOMPARE(*row.getCalculatedValue(), TestOrResultData(result::RESULT_MONEY));
        QCOMPARE(child<QComboBox>(row, "comboOp")->itemText(33), QStringLiteral("wa — wait"));
        QCOMPARE(child<QComboBox>(row, "comboOp")->itemText(34), QStringLiteral("wa — wait"));
        QCOMPARE(child<QSpinBox>(row, "spin1")->minimum(), -1000000);
        QCOMPARE(child<QSpinBox>(row, "spin1")->maximum(), 1000000);
        QCOMPARE(child<QSpinBox>(row, "spin2")->minimum(), -1000000);
        QCOMPARE(child<QSpinBox>(row, "spin2")->maximum(), 1000000000);
        QSignalSpy plus(&row, &DialogueTestsWidget::plusButtonPressed);
        QSignalSpy minus(&row, &DialogueTestsWidget::minusButtonPressed);
        QTest::mouseClick(child<QToolButton>(row, "buttonAdd"), Qt::LeftButton);
        QTest::mouseClick(child<QToolButton>(row, "buttonRemove"), Qt::LeftButton);
        QCOMPARE(plus.count(), 1);
        QCOMPARE(plus.first().first().toInt(), 2);
        QCOMPARE(minus.count(), 1);
        QCOMPARE(minus.first().first().toInt(), 2);
        QVERIFY(!row.isEdited());
    }

    // Out of the spin boxes' reach, a value a row was not asked to change comes back whole.
    void untouchedRowKeepsOutOfRangeValues()
    {
        const int smallest = std::numeric_limits<qint32>::min();
        DialogueTestsWidget money(nullptr, 0, &test::ALL_TESTS, TestOrResultData(test::TEST_MONEY, smallest));
        QCOMPARE(child<QSpinBox>(money, "spin1")->value(), 1000000);
        QCOMPARE(*money.getCalculatedValue(), TestOrResultData(test::TEST_MONEY, smallest));
        DialogueTestsWidget flag(nullptr, 0, &test::ALL_TESTS, TestOrResultData(test::TEST_GLOBAL_FLAG, 5000000, 2000000000));
        QCOMPARE(*flag.getCalculatedValue(), TestOrResultData(test::TEST_GLOBAL_FLAG, 5000000, 2000000000));
    }

    // Every opcode of every chooser gives back what it shows once its controls were used.
    void editedRowRoundTrip_data()
    {
        QTest::addColumn<const TestOrResultTypes*>("types");
        QTest::addColumn<int>("position");
        const QList<QPair<const char*, const TestOrResultTypes*>> choosers = {
            {"test", &test::ALL_TESTS}, {"pc", &result::ALL_PC_RESULTS}, {"npc", &result::ALL_NPC_RESULTS}};
        for (const auto& chooser : choosers) {
            for (int i = 0; i < chooser.second->size(); ++i)
                QTest::addRow("%s %d %s", chooser.first, i, qPrintable(chooser.second->at(i)->code())) << chooser.second << i;
        }
    }

    void editedRowRoundTrip()
    {
        QFETCH(const TestOrResultTypes*, types);
        QFETCH(int, position);
        const TestOrResultType* type = types->at(position);
        const TestOrResultData record(type, type->argumentCount() >= 1 ? -12 : 0, type->argumentCount() == 2 ? 345 : 0);
        DialogueTestsWidget row(nullptr, 0, types, record);
        QCOMPARE(child<QComboBox>(row, "comboOp")->currentIndex(), static_cast<int>(types->indexOf(type)));
        auto* spin1 = child<QSpinBox>(row, "spin1");
        spin1->setValue(spin1->value() + 1);
        spin1->setValue(spin1->value() - 1);
        QVERIFY(row.isEdited());
        QCOMPARE(*row.getCalculatedValue(), record);
    }

    void pcIntelligence_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("magnitude");
        QTest::newRow("maximum") << "{No}{}{-6}{}{1}{}" << "Maximum intelligence" << 6;
        QTest::newRow("zero") << "{No}{}{0}{}{1}{}" << "Minimum intelligence" << 0;
        QTest::newRow("minimum") << "{No}{}{8}{}{1}{}" << "Minimum intelligence" << 8;
    }

    void pcIntelligence()
    {
        QFETCH(QString, entry);
        QFETCH(QString, kind);
        QFETCH(int, magnitude);
        DlgPcLineEditWidget form;
        const DialogueFileNew::PCLinePointer line = pcLine(3, entry);
        form.fillWithData(line);
        QCOMPARE(child<QComboBox>(form, "comboIntType")->currentText(), kind);
        QCOMPARE(child<QSpinBox>(form, "spinIntelligence")->value(), magnitude);
        QCOMPARE(form.getIntelligence(), line->intelligence());
        QVERIFY(!form.hasPendingChanges());

        form.setIntelligence(-9);
        QCOMPARE(child<QComboBox>(form, "comboIntType")->currentIndex(), 1);
        QVERIFY(form.hasPendingChanges());
        form.applyChangesToData();
        QCOMPARE(line->intelligence(), -9);
        QVERIFY(line->getCompleteLineText().startsWith(QStringLiteral("{3}{No}{}{-9}{}")));
    }

    void pcGender()
    {
        DlgPcLineEditWidget form;
        const DialogueFileNew::PCLinePointer line = pcLine(4, QStringLiteral("{Hi}{0}{1}{}{1}{}"));
        form.fillWithData(line);
        auto* gender = child<QComboBox>(form, "comboGender");
        QCOMPARE(gender->currentText(), QStringLiteral("Female"));
        QCOMPARE(form.getGender(), DialogueFileNew::GENDER_FEMALE);
        form.setGender(DialogueFileNew::GENDER_MALE);
        QCOMPARE(gender->currentIndex(), 2);
        form.setGender(static_cast<DialogueFileNew::Gender>(7));
        QCOMPARE(gender->currentIndex(), 2);
        form.setGender(DialogueFileNew::GENDER_EITHER);
        QCOMPARE(gender->currentText(), QStringLiteral("Both"));

        gender->setCurrentIndex(-1);
        bool thrown = false;
        try {
            form.getGender();
        } catch (const char* error) {
            thrown = QByteArray(error) == "error";
        }
        QVERIFY(thrown);
        // Applying catches it and leaves the gender as it was.
        form.applyChangesToData();
        QCOMPARE(line->gender(), DialogueFileNew::GENDER_FEMALE);
    }

    void addRequirementsInsertsFirst()
    {
        DlgPcLineEditWidget form;
        const DialogueFileNew::PCLinePointer line = pcLine(6, QStringLiteral("{Pay}{}{5}{$$ 100, gf 12 1, in 3456}{40}{}"));
        form.fillWithData(line);
        QCOMPARE(rowsOf(form, "testsLayout").size(), 3);
        QSignalSpy modified(&form, &DlgLineEditWidget::wasModifiedSignal);
        QTest::mouseClick(child<QPushButton>(form, "addTests"), Qt::LeftButton);
        QCOMPARE(modified.count(), 1);
        const QList<DialogueTestsWidget*> rows = rowsOf(form, "testsLayout");
        QCOMPARE(rows.size(), 4);
        for (int i = 0; i < rows.size(); ++i)
            QCOMPARE(rows.at(i)->rowNumber(), i);
        QCOMPARE(form.getTests().first(), TestOrResultData(test::TEST_MONEY));
        QCOMPARE(line->tests().toString(), QStringLiteral("$$ 0, $$ 100, gf 12 1, in 3456"));

        // The plus button of a row adds below it; out-of-range positions add nothing.
        QTest::mouseClick(child<QToolButton>(*rows.at(2), "buttonAdd"), Qt::LeftButton);
        QCOMPARE(line->tests().toString(), QStringLiteral("$$ 0, $$ 100, gf 12 1, $$ 0, in 3456"));
        form.addTestWidgetAfter(5);
        form.addTestWidgetAfter(-2);
        QCOMPARE(rowsOf(form, "testsLayout").size(), 5);
    }

    void removingLastRowEmptiesList()
    {
        DlgPcLineEditWidget form;
        const DialogueFileNew::PCLinePointer line = pcLine(7, QStringLiteral("{Bye}{}{1}{re 40}{0}{mm 3}"));
        form.fillWithData(line);
        QTest::mouseClick(child<QToolButton>(*rowsOf(form, "resultsLayout").first(), "buttonRemove"), Qt::LeftButton);
        QTest::mouseClick(child<QToolButton>(*rowsOf(form, "testsLayout").first(), "buttonRemove"), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(rowsOf(form, "testsLayout").isEmpty());
        QVERIFY(rowsOf(form, "resultsLayout").isEmpty());
        form.applyChangesToData();
        QVERIFY(line->tests().records().isEmpty());
        QVERIFY(line->results().records().isEmpty());
        QCOMPARE(line->getCompleteLineText(), QStringLiteral("{7}{Bye}{}{1}{}{0}{}"));
        form.removeTestWidget(0); // nothing left to remove
        QVERIFY(rowsOf(form, "testsLayout").isEmpty());
    }

    void pcFormEditsFields()
    {
        DlgPcLineEditWidget form;
        const DialogueFileNew::PCLinePointer line = pcLine(2, QStringLiteral("{Work?}{}{4}{}{10}{}"));
        form.fillWithData(line);
        QCOMPARE(child<QSpinBox>(form, "spinLineNumber")->value(), 2);
        QVERIFY(child<QSpinBox>(form, "spinLineNumber")->isEnabled()); // renumbering goes through the page
        auto* text = child<QPlainTextEdit>(form, "text");
        text->moveCursor(QTextCursor::End);
        QTest::keyClicks(text, QStringLiteral(" Now."));
        child<QSpinBox>(form, "spinResponse")->setValue(11);
        child<QComboBox>(form, "comboGender")->setCurrentIndex(2);
        QTest::mouseClick(child<QPushButton>(form, "addResults"), Qt::LeftButton);
        QCOMPARE(line->getCompleteLineText(), QStringLiteral("{2}{Work? Now.}{1}{4}{}{11}{$$ 0}"));

        // "Set original data" shows the line again, dropping what was not applied.
        text->moveCursor(QTextCursor::End);
        QTest::keyClicks(text, QStringLiteral("!"));
        QTest::mouseClick(child<QPushButton>(form, "buttonReset"), Qt::LeftButton);
        QCOMPARE(text->toPlainText(), QStringLiteral("Work? Now."));
        QVERIFY(!form.hasPendingChanges());
    }

    // Touching controls without changing values leaves a defective line as it was read, and a text
    // box never rewrites characters it shows differently.
    void untouchedValuesStayAsRead_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<bool>("touchRows");
        QTest::newRow("unknown opcode") << QStringLiteral("{Discount}{}{5}{zz 1, ha 2}{40}{}") << true;
        QTest::newRow("bad response") << QStringLiteral("{Haggle}{}{5}{ha 3}{later}{}") << true;
        QTest::newRow("no-break space") << QString::fromUtf8("{Ja\u00a0wohl\rsir}{}{3}{QU 5 2}{1}{al  1}") << true;
        // A row the user changes is read from its controls, which cannot show these.
        QTest::newRow("huge numbers") << QStringLiteral("{Big}{}{-2147483648}{gf 99999999 1}{-2147483648}{}") << false;
    }

    void untouchedValuesStayAsRead()
    {
        QFETCH(QString, entry);
        QFETCH(bool, touchRows);
        DlgPcLineEditWidget form;
        const DialogueFileNew::PCLinePointer line = pcLine(41, entry);
        const QString before = line->getCompleteLineText();
        form.fillWithData(line);
        touch(child<QPlainTextEdit>(form, "text"));
        auto* intType = child<QComboBox>(form, "comboIntType");
        const int kind = intType->currentIndex();
        intType->setCurrentIndex(1 - kind);
        intType->setCurrentIndex(kind);
        for (DialogueTestsWidget* row : touchRows ? rowsOf(form, "testsLayout") : QList<DialogueTestsWidget*>()) {
            auto* spin = child<QSpinBox>(*row, "spin2");
            spin->setValue(spin->value() - 1);
            spin->setValue(spin->value() + 1);
        }
        QVERIFY(form.hasPendingChanges());
        form.applyChangesToData();
        QVERIFY(!line->isEdited());
        QCOMPARE(line->getCompleteLineText(), before);
    }

    void editedTextKeepsItsCharacters()
    {
        DlgPcLineEditWidget form;
        const QString text = QString::fromUtf8("Ja\u00a0wohl,\tsir.\nZwei Zeilen.");
        const DialogueFileNew::PCLinePointer line = pcLine(9, QStringLiteral("{%1}{}{3}{}{1}{}").arg(text));
        form.fillWithData(line);
        auto* edit = child<QPlainTextEdit>(form, "text");
        edit->moveCursor(QTextCursor::End);
        QTest::keyClicks(edit, QStringLiteral("!"));
        form.applyChangesToData();
        QCOMPARE(line->text(), text + QLatin1Char('!'));
    }

    void npcChecksFollowLine_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<bool>("generated");
        QTest::addColumn<bool>("female");
        QTest::addColumn<bool>("hasGoto");
        QTest::newRow("plain") << "{Mind the door.}{}{}{}{}{re -5}" << false << false << false;
        QTest::newRow("female") << "{Hello sir.}{Hello madam.}{}{}{}{}" << true << true << false;
        QTest::newRow("goto") << "{He left.}{}{}{}{1}{gf 12 1}" << true << false << true;
    }

    void npcChecksFollowLine()
    {
        QFETCH(QString, entry);
        QFETCH(bool, generated);
        QFETCH(bool, female);
        QFETCH(bool, hasGoto);
        DlgNpcLineEditWidget form;
        form.fillWithData(npcLine(30, entry));
        QCOMPARE(child<QCheckBox>(form, "checkIsGenerated")->isChecked(), generated);
        QCOMPARE(child<QCheckBox>(form, "checkDifferentFemale")->isChecked(), female);
        QCOMPARE(child<QCheckBox>(form, "checkHasGoto")->isChecked(), hasGoto);
        QCOMPARE(child<QWidget>(form, "checkDifferentFemale")->isVisibleTo(&form), generated);
        QCOMPARE(child<QWidget>(form, "frameGoto")->isVisibleTo(&form), generated);
        QCOMPARE(child<QWidget>(form, "checkHasGoto")->isEnabledTo(&form), generated);
        QCOMPARE(child<QWidget>(form, "femaleText")->isVisibleTo(&form), female);
        QCOMPARE(child<QWidget>(form, "spinResponseLine")->isVisibleTo(&form), hasGoto);
        QCOMPARE(child<QWidget>(form, "labelResponseLine")->isVisibleTo(&form), hasGoto);
        QVERIFY(child<QWidget>(form, "spinLineNumber")->isEnabled());
        QCOMPARE(child<QPushButton>(form, "buttonReset")->toolTip(), QStringLiteral("NOT implemented yet :("));

        // The check boxes drive what they govern.
        child<QCheckBox>(form, "checkIsGenerated")->setChecked(!generated);
        QCOMPARE(child<QWidget>(form, "frameGoto")->isVisibleTo(&form), !generated);
        child<QCheckBox>(form, "checkDifferentFemale")->setChecked(!female);
        QCOMPARE(child<QWidget>(form, "femaleText")->isEnabled(), !female);
    }

    void npcResponseLine()
    {
        DlgNpcLineEditWidget form;
        const DialogueFileNew::NPCLinePointer line = npcLine(20, QStringLiteral("{Mind the door.}{}{}{}{}{re -5}"));
        form.fillWithData(line);
        // Switching the goto on applies the number shown, even unchanged.
        child<QCheckBox>(form, "checkIsGenerated")->setChecked(true);
        child<QCheckBox>(form, "checkHasGoto")->setChecked(true);
        form.applyChangesToData();
        QCOMPARE(line->responseLine(), 0);
        child<QSpinBox>(form, "spinResponseLine")->setValue(21);
        form.applyChangesToData();
        QCOMPARE(line->responseLine(), 21);
        // A hidden response line is left as it was.
        child<QCheckBox>(form, "checkHasGoto")->setChecked(false);
        child<QSpinBox>(form, "spinResponseLine")->setValue(22);
        form.applyChangesToData();
        QCOMPARE(line->responseLine(), 21);
        QCOMPARE(line->getCompleteLineText(), QStringLiteral("{20}{Mind the door.}{}{}{}{21}{re -5}"));
    }

    void npcTextsAndResults()
    {
        DlgNpcLineEditWidget form;
        const DialogueFileNew::NPCLinePointer line = npcLine(1, QStringLiteral("{Welcome.}{Welcome, lady.}{}{}{}{qu 5 1}"));
        form.fillWithData(line);
        QCOMPARE(form.getOriginalLine(), line);
        QCOMPARE(child<QPlainTextEdit>(form, "maleText")->toPlainText(), QStringLiteral("Welcome."));
        QCOMPARE(child<QPlainTextEdit>(form, "femaleText")->toPlainText(), QStringLiteral("Welcome, lady."));
        child<QPlainTextEdit>(form, "femaleText")->setPlainText(QStringLiteral("Welcome,\nmy lady."));
        QTest::mouseClick(child<QPushButton>(form, "addResults"), Qt::LeftButton);
        QCOMPARE(line->getCompleteLineText(), QStringLiteral("{1}{Welcome.}{Welcome,\nmy lady.}{}{}{}{$$ 0, qu 5 1}"));
        QTest::mouseClick(child<QToolButton>(*rowsOf(form, "resultsLayout").first(), "buttonRemove"), Qt::LeftButton);
        QCOMPARE(line->results().toString(), QStringLiteral("qu 5 1"));

        // Without a line there is nothing to apply to.
        form.clear();
        QVERIFY(!form.isEnabled());
        QVERIFY(!form.getOriginalLine());
        form.fillWithData(DialogueFileNew::NPCLinePointer());
        QVERIFY(rowsOf(form, "resultsLayout").isEmpty());
    }
};

QTEST_MAIN(TestDialogueEditorForms)
#include "tst_dialogue_editor_forms.moc"
