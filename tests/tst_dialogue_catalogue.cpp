// The catalogue of dialogue opcodes: contents, identity, and how the row settings read a row.
#include "DialogueCatalogue.h"
#include "DialogueOpcodeSettings.h"
#include "OpcodeWords.h"
#include "TestOrResultForm.h"

#include <QtTest>

Q_DECLARE_METATYPE(const arcanum::dlg::TestOrResultTypes*)
Q_DECLARE_METATYPE(const arcanum::dlg::TestOrResultType*)

using namespace arcanum::dlg;

namespace {

// Read while the program starts, before main: the catalogue must already be complete then.
const int testsBeforeMain = test::ALL_TESTS.size();
const QString moneyCodeBeforeMain = test::TEST_MONEY->code();

// A row as the settings see it: what each combo box holds and shows, and each spin box's value.
class FakeForm : public TestOrResultForm
{
public:
    struct Combo
    {
        QStringList items;
        int index = -1;
        bool shown = true;
    };
    struct Spin
    {
        int value = 0;
        bool shown = true;
    };
    Combo combos[3];
    Spin spins[2];

    int currentIndex(ComboBox combo) const override { return combos[combo].index; }
    QString currentText(ComboBox combo) const override { return combos[combo].items.value(combos[combo].index); }
    int count(ComboBox combo) const override { return combos[combo].items.size(); }
    int value(SpinBox spin) const override { return spins[spin].value; }
    bool isShown(ComboBox combo) const override { return combos[combo].shown; }
    bool isShown(SpinBox spin) const override { return spins[spin].shown; }

    // Shows the controls and combo1 items the way a row fills them from the settings.
    static FakeForm forSettings(const TestOrResultGuiSettings& settings)
    {
        FakeForm form;
        form.combos[combo1] = {settings.combo1Items(), 0, settings.shows(TestOrResultGuiSettings::COMBO1)};
        form.combos[combo2] = {settings.combo2Items(), settings.combo2Items().isEmpty() ? -1 : 0,
                               settings.shows(TestOrResultGuiSettings::COMBO2)};
        form.spins[spin1].shown = settings.shows(TestOrResultGuiSettings::SPIN1);
        form.spins[spin2].shown = settings.shows(TestOrResultGuiSettings::SPIN2);
        return form;
    }
};

QString describe(const TestOrResultTypes& types)
{
    QStringList parts;
    for (const TestOrResultType* type : types)
        parts << type->code() + QString::number(type->argumentCount());
    return parts.join(QLatin1Char(' '));
}

} // namespace

class TestDialogueCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void opcodesInWords_data()
    {
        QTest::addColumn<const void*>("type");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QStringList>("arguments");
        using namespace arcanum::dlg;
        QTest::newRow("gf test") << static_cast<const void*>(test::TEST_GLOBAL_FLAG) << "gf — global flag"
                                 << QStringList{"flag", "value"};
        QTest::newRow("$$ test") << static_cast<const void*>(test::TEST_MONEY) << "$$ — money" << QStringList{"value"};
        QTest::newRow("tr test") << static_cast<const void*>(test::TEST_TRAINING_STATE) << "tr — training state"
                                 << QStringList{"skill", "level"};
        QTest::newRow("ta test") << static_cast<const void*>(test::TEST_TECH_APT) << "ta — tech aptitude"
                                 << QStringList{"value"};
        QTest::newRow("xp result") << static_cast<const void*>(result::RESULT_XP) << "xp — experience" << QStringList{};
        QTest::newRow("jo result") << static_cast<const void*>(result::RESULT_JOIN_GROUP_TEST) << "jo — join group"
                                   << QStringList{"line if yes", "line if no"};
    }

    void opcodesInWords()
    {
        QFETCH(const void*, type);
        QFETCH(QString, label);
        QFETCH(QStringList, arguments);
        const auto* opcode = static_cast<const arcanum::dlg::TestOrResultType*>(type);
        QCOMPARE(arcanum::dlg::OpcodeWords::label(opcode), label);
        QCOMPARE(arcanum::dlg::OpcodeWords::argumentNames(opcode), arguments);
    }

    void everyOpcodeHasWordsForEachArgument()
    {
        using namespace arcanum::dlg;
        for (const TestOrResultTypes* types : {&test::ALL_TESTS, &result::ALL_PC_RESULTS})
            for (const TestOrResultType* type : *types) {
                QVERIFY2(!OpcodeWords::meaning(type).isEmpty(), qPrintable(type->code()));
                QCOMPARE(OpcodeWords::argumentNames(type).size(), int(type->argumentCount()));
            }
    }

    void isCompleteBeforeMain()
    {
        QCOMPARE(testsBeforeMain, 37);
        QCOMPARE(moneyCodeBeforeMain, QStringLiteral("$$"));
    }

    void vectorsHoldCodesAndArgumentCountsInChooserOrder_data()
    {
        QTest::addColumn<const TestOrResultTypes*>("types");
        QTest::addColumn<QString>("expected");
        QTest::newRow("tests") << &test::ALL_TESTS
                               << QStringLiteral("$$1 al1 ar1 ch1 fo1 gf2 gv2 ha1 ia1 in1 lc2 le1 lf2 ma1 me1 na1 ni1 "
                                                 "pa1 pe1 pf2 ps1 pv2 qa2 qb2 qu2 ra1 re1 rp1 rq1 ru1 sc2 sk2 ss1 "
                                                 "ta1 tr2 wa1 wt1");
        QTest::newRow("PC results") << &result::ALL_PC_RESULTS
                                    << QStringLiteral("$$1 al1 ce0 co0 et2 fl1 fp0 gf2 gv2 ii0 in1 jo2 lc2 lf2 lv0 "
                                                      "mm1 nk0 np2 or1 pf2 pv2 qu2 re1 ri0 rp1 rq1 ru1 sc0 so0 ss1 "
                                                      "su0 tr1 uw2 wa0 wa0 xp0");
        QTest::newRow("NPC results") << &result::ALL_NPC_RESULTS
                                     << QStringLiteral("$$1 al1 ce0 co0 fl1 fp0 gf2 gv2 ii0 in1 lc2 lf2 lv0 mm1 nk0 "
                                                       "np2 or1 pf2 pv2 qu2 re1 ri0 rp1 rq1 ru1 sc0 so0 ss1 su0 tr1 "
                                                       "uw2 wa0 wa0 xp0");
    }

    void vectorsHoldCodesAndArgumentCountsInChooserOrder()
    {
        QFETCH(const TestOrResultTypes*, types);
        QFETCH(QString, expected);
        QCOMPARE(describe(*types), expected);
    }

    void sizesAndTheDoubledWait()
    {
        QCOMPARE(test::ALL_TESTS.size(), 37);
        QCOMPARE(result::ALL_PC_RESULTS.size(), 36);
        QCOMPARE(result::ALL_NPC_RESULTS.size(), 34);
        QCOMPARE(result::ALL_PC_RESULTS.at(33), result::RESULT_WAIT);
        QCOMPARE(result::ALL_PC_RESULTS.at(34), result::RESULT_WAIT);
        QCOMPARE(result::ALL_PC_RESULTS.at(35), result::RESULT_XP);
        QCOMPARE(result::ALL_NPC_RESULTS.at(31), result::RESULT_WAIT);
        QCOMPARE(result::ALL_NPC_RESULTS.at(32), result::RESULT_WAIT);
        // The row editor finds a record's chooser index by pointer: the first of the two.
        QCOMPARE(result::ALL_PC_RESULTS.indexOf(result::RESULT_WAIT), 33);
        QCOMPARE(result::ALL_NPC_RESULTS.indexOf(result::RESULT_WAIT), 31);
    }

    void namedConstantsAreTheVectorEntries()
    {
        QCOMPARE(test::ALL_TESTS.first(), test::TEST_MONEY);
        QCOMPARE(test::ALL_TESTS.at(26), test::TEST_REACTION);
        QCOMPARE(test::ALL_TESTS.last(), test::TEST_WAIT_TIME_EXPIRED);
        QCOMPARE(result::ALL_PC_RESULTS.at(4), result::RESULT_EXPERT_TRAINING);
        QCOMPARE(result::ALL_PC_RESULTS.at(11), result::RESULT_JOIN_GROUP_TEST);
        QVERIFY(!result::ALL_NPC_RESULTS.contains(result::RESULT_EXPERT_TRAINING));
        QVERIFY(!result::ALL_NPC_RESULTS.contains(result::RESULT_JOIN_GROUP_TEST));
        // Tests and results of the same code are different opcodes.
        QVERIFY(static_cast<const void*>(test::TEST_MONEY) != static_cast<const void*>(result::RESULT_MONEY));
    }

    void everyOpcodeHasItsOwnSettingsClass()
    {
        QVERIFY(dynamic_cast<const test::TEST_MONEY_Settings*>(test::TEST_MONEY->settings()));
        QVERIFY(dynamic_cast<const test::TEST_REACTION_Settings*>(test::TEST_REACTION->settings()));
        QVERIFY(dynamic_cast<const test::TEST_GLOBAL_FLAG_Settings*>(test::TEST_GLOBAL_FLAG->settings()));
        QVERIFY(dynamic_cast<const result::RESULT_XP_Settings*>(result::RESULT_XP->settings()));
        QVERIFY(!dynamic_cast<const result::RESULT_XP_Settings*>(result::RESULT_WAIT->settings()));
    }

    void descriptionsAndControls()
    {
        QCOMPARE(test::TEST_MONEY->description(), QStringLiteral("Money"));
        QCOMPARE(test::TEST_REACTION->description(), QStringLiteral("Reaction"));
        QCOMPARE(test::TEST_GLOBAL_FLAG->description(), QStringLiteral("gf"));
        QCOMPARE(TestOrResultType(QStringLiteral("zz"), 0, QString(), nullptr).description(), QStringLiteral("zz"));

        const TestOrResultGuiSettings& money = *test::TEST_MONEY->settings();
        QCOMPARE(money.combo1Items(), QStringList({QStringLiteral(">="), QStringLiteral("<=")}));
        QCOMPARE(money.visibleControls(), 3);
        QVERIFY(money.combo2Items().isEmpty());
        // Generic controls whatever the argument count, even for an opcode without arguments.
        const TestOrResultGuiSettings& combat = *result::RESULT_START_COMBAT->settings();
        QCOMPARE(combat.combo1Items(), QStringList(QStringLiteral("arg1")));
        QCOMPARE(combat.combo2Items(), QStringList(QStringLiteral("arg2")));
        QCOMPARE(combat.visibleControls(), 11);
        QVERIFY(combat.spin1ToolTip().isEmpty() && combat.spin2ToolTip().isEmpty());
    }

    void findsCodesWithoutRegardToCase_data()
    {
        QTest::addColumn<const TestOrResultTypes*>("types");
        QTest::addColumn<QString>("code");
        QTest::addColumn<const TestOrResultType*>("expected");
        QTest::newRow("exact") << &test::ALL_TESTS << QStringLiteral("gf") << test::TEST_GLOBAL_FLAG;
        QTest::newRow("capitals") << &test::ALL_TESTS << QStringLiteral("QU") << test::TEST_QUEST_IN_STATE;
        QTest::newRow("mixed") << &result::ALL_PC_RESULTS << QStringLiteral("Wa") << result::RESULT_WAIT;
        QTest::newRow("unknown") << &test::ALL_TESTS << QStringLiteral("zz")
                                 << static_cast<const TestOrResultType*>(nullptr);
        QTest::newRow("not an NPC result") << &result::ALL_NPC_RESULTS << QStringLiteral("et")
                                           << static_cast<const TestOrResultType*>(nullptr);
        QTest::newRow("empty") << &test::ALL_TESTS << QString() << static_cast<const TestOrResultType*>(nullptr);
    }

    void findsCodesWithoutRegardToCase()
    {
        QFETCH(const TestOrResultTypes*, types);
        QFETCH(QString, code);
        QFETCH(const TestOrResultType*, expected);
        QCOMPARE(findType(*types, code), expected);
    }

    void getValuesPacksSignAndSecondValue_data()
    {
        QTest::addColumn<const TestOrResultType*>("type");
        QTest::addColumn<int>("combo1Index");
        QTest::addColumn<int>("spin1");
        QTest::addColumn<int>("spin2");
        QTest::addColumn<int>("value1");
        QTest::addColumn<int>("value2");
        QTest::addColumn<qint64>("packed");
        QTest::newRow("money at least") << test::TEST_MONEY << 0 << 250 << 9 << 250 << 0 << qint64(250);
        QTest::newRow("money at most") << test::TEST_MONEY << 1 << 250 << 9 << -250 << 0 << qint64(0xFFFFFF06);
        QTest::newRow("reaction at most") << test::TEST_REACTION << 1 << 40 << 0 << -40 << 0
                                          << qint64(0xFFFFFFD8);
        QTest::newRow("generic") << test::TEST_GLOBAL_FLAG << 0 << 3 << 7 << 3 << 7 << (qint64(7) << 32 | 3);
        QTest::newRow("generic negative") << test::TEST_GLOBAL_FLAG << 0 << -5 << -1 << -5 << -1 << qint64(-5);
        QTest::newRow("smallest int") << test::TEST_MONEY << 1 << std::numeric_limits<int>::min() << 0
                                      << std::numeric_limits<int>::min() << 0 << qint64(0x80000000);
    }

    void getValuesPacksSignAndSecondValue()
    {
        QFETCH(const TestOrResultType*, type);
        QFETCH(int, combo1Index);
        QFETCH(int, spin1);
        QFETCH(int, spin2);
        QFETCH(int, value1);
        QFETCH(int, value2);
        QFETCH(qint64, packed);
        FakeForm form = FakeForm::forSettings(*type->settings());
        form.combos[TestOrResultForm::combo1].index = combo1Index;
        form.spins[TestOrResultForm::spin1].value = spin1;
        form.spins[TestOrResultForm::spin2].value = spin2;
        const qint64 values = type->settings()->getValues(form);
        QCOMPARE(values, packed);
        const TestOrResultData data = TestOrResultData::fromValues(type, values);
        QCOMPARE(data.type, type);
        QCOMPARE(data.value1, value1);
        QCOMPARE(data.value2, value2);
        QVERIFY(type->settings()->validateInput(form));
    }

    void comparisonSentences_data()
    {
        QTest::addColumn<const TestOrResultType*>("type");
        QTest::addColumn<int>("combo1Index");
        QTest::addColumn<int>("spin1");
        QTest::addColumn<QString>("expected");
        QTest::newRow("money at least") << test::TEST_MONEY << 0 << 100
                                        << QStringLiteral("true if PC and followers have >= 100 gold");
        QTest::newRow("money at most") << test::TEST_MONEY << 1 << 250
                                       << QStringLiteral("true if PC and followers have <= 250 gold");
        QTest::newRow("reaction") << test::TEST_REACTION << 1 << 5
                                  << QStringLiteral("true if NPC reaction towards PC <= 5");
        QTest::newRow("nothing chosen") << test::TEST_REACTION << -1 << 5
                                        << QStringLiteral("true if NPC reaction towards PC  5");
    }

    void comparisonSentences()
    {
        QFETCH(const TestOrResultType*, type);
        QFETCH(int, combo1Index);
        QFETCH(int, spin1);
        QFETCH(QString, expected);
        FakeForm form = FakeForm::forSettings(*type->settings());
        form.combos[TestOrResultForm::combo1].index = combo1Index;
        form.spins[TestOrResultForm::spin1].value = spin1;
        QCOMPARE(type->settings()->getCombo1ToolTip(form), expected);
        QCOMPARE(type->settings()->getSpin1ToolTip(form), expected);
    }

    void genericToolTips_data()
    {
        QTest::addColumn<int>("comboIndex");
        QTest::addColumn<QString>("comboToolTip");
        QTest::addColumn<QString>("spin1ToolTip");
        QTest::addColumn<QString>("spin2ToolTip");
        QTest::newRow("first") << 0 << QStringLiteral("first") << QStringLiteral("flag 12") << QStringLiteral("plain");
        QTest::newRow("last") << 1 << QStringLiteral("second") << QStringLiteral("flag 12") << QStringLiteral("plain");
        QTest::newRow("empty combo") << -1 << QString() << QStringLiteral("flag 12") << QStringLiteral("plain");
        QTest::newRow("beyond the tool tips") << 2 << QString() << QStringLiteral("flag 12") << QStringLiteral("plain");
    }

    void genericToolTips()
    {
        QFETCH(int, comboIndex);
        QFETCH(QString, comboToolTip);
        QFETCH(QString, spin1ToolTip);
        QFETCH(QString, spin2ToolTip);
        const QStringList toolTips{QStringLiteral("first"), QStringLiteral("second")};
        const TestOrResultGuiSettings settings({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")},
                                               {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")},
                                               toolTips, toolTips, QStringLiteral("flag %1"),
                                               QStringLiteral("plain"), 15);
        FakeForm form = FakeForm::forSettings(settings);
        form.combos[TestOrResultForm::combo1].index = comboIndex;
        form.combos[TestOrResultForm::combo2].index = comboIndex;
        form.spins[TestOrResultForm::spin1].value = 12;
        form.spins[TestOrResultForm::spin2].value = 34;
        QCOMPARE(settings.getCombo1ToolTip(form), comboToolTip);
        QCOMPARE(settings.getCombo2ToolTip(form), comboToolTip);
        QCOMPARE(settings.getSpin1ToolTip(form), spin1ToolTip);
        QCOMPARE(settings.getSpin2ToolTip(form), spin2ToolTip);
        QTest::ignoreMessage(QtDebugMsg, "~TestOrResultGuiSettings()");
    }
};

QTEST_GUILESS_MAIN(TestDialogueCatalogue)
#include "tst_dialogue_catalogue.moc"
