#include "DialogueCatalogue.h"

#include "DialogueOpcodeSettings.h"

#include <new>

namespace arcanum::dlg {

namespace {

// Storage that is in place before any code runs (its constructor is constant), so the named constants
// can be fixed addresses into it. The catalogue object is constructed into it once and never destroyed.
template <typename T>
union Slot {
    constexpr Slot()
        : unused()
    {
    }
    ~Slot() {}
    char unused;
    T object;
};

#define ARCANUM_DLG_INDEX(NAME, CODE, ARGUMENTS, LABEL, KIND) NAME##_INDEX,
enum TestIndex { ARCANUM_DLG_TESTS(ARCANUM_DLG_INDEX) TEST_COUNT };
enum ResultIndex { ARCANUM_DLG_RESULTS(ARCANUM_DLG_INDEX) RESULT_COUNT };
enum VectorIndex { TESTS, PC_RESULTS, NPC_RESULTS, VECTOR_COUNT };
static_assert(TEST_COUNT == 37 && RESULT_COUNT == 35, "the game knows 37 tests and 35 results");

Slot<TestOrResultType> testSlots[TEST_COUNT];
Slot<TestOrResultType> resultSlots[RESULT_COUNT];
Slot<TestOrResultTypes> vectorSlots[VECTOR_COUNT];

// Generic controls: one-item combo1, spin1 and spin2, whatever the argument count.
template <typename Settings>
TestOrResultGuiSettings* newSettings()
{
    return new Settings({QStringLiteral("arg1")}, {QStringLiteral("arg2")}, {}, {}, {}, {},
                        TestOrResultGuiSettings::COMBO1 | TestOrResultGuiSettings::SPIN1
                            | TestOrResultGuiSettings::SPIN2);
}

template <typename Settings>
TestOrResultGuiSettings* newComparisonSettings(const QString& sentence)
{
    return new Settings({QStringLiteral(">="), QStringLiteral("<=")}, {}, {}, {}, sentence, {},
                        TestOrResultGuiSettings::COMBO1 | TestOrResultGuiSettings::SPIN1);
}

template <>
TestOrResultGuiSettings* newSettings<test::TEST_MONEY_Settings>()
{
    return newComparisonSettings<test::TEST_MONEY_Settings>(
        QStringLiteral("true if PC and followers have %2 %1 gold"));
}

template <>
TestOrResultGuiSettings* newSettings<test::TEST_REACTION_Settings>()
{
    return newComparisonSettings<test::TEST_REACTION_Settings>(QStringLiteral("true if NPC reaction towards PC %2 %1"));
}

void place(Slot<TestOrResultType>& slot, const char* code, signed char arguments, const char* label,
           TestOrResultGuiSettings* settings)
{
    new (&slot.object) TestOrResultType(QString::fromLatin1(code), arguments, QString::fromLatin1(label), settings);
}

TestOrResultTypes& placeVector(VectorIndex index)
{
    return *new (&vectorSlots[index].object) TestOrResultTypes;
}

void buildTests()
{
#define ARCANUM_DLG_PLACE_TEST(NAME, CODE, ARGUMENTS, LABEL, KIND)                               \
    place(testSlots[NAME##_INDEX], CODE, ARGUMENTS, LABEL, newSettings<test::NAME##_Settings>());
    ARCANUM_DLG_TESTS(ARCANUM_DLG_PLACE_TEST)
    TestOrResultTypes& tests = placeVector(TESTS);
    for (Slot<TestOrResultType>& slot : testSlots)
        tests.append(&slot.object);
}

void buildResults()
{
#define ARCANUM_DLG_PLACE_RESULT(NAME, CODE, ARGUMENTS, LABEL, KIND)                             \
    place(resultSlots[NAME##_INDEX], CODE, ARGUMENTS, LABEL, newSettings<result::NAME##_Settings>());
    ARCANUM_DLG_RESULTS(ARCANUM_DLG_PLACE_RESULT)
    // The game's own chooser lists "wa" twice; the positions after it depend on that.
    TestOrResultTypes& pcResults = placeVector(PC_RESULTS);
    for (int i = 0; i < RESULT_COUNT; ++i) {
        pcResults.append(&resultSlots[i].object);
        if (i == RESULT_WAIT_INDEX)
            pcResults.append(&resultSlots[i].object);
    }
    // Expert training and joining a group only make sense as the player's answer.
    TestOrResultTypes& npcResults = placeVector(NPC_RESULTS);
    npcResults = pcResults;
    npcResults.removeAll(&resultSlots[RESULT_EXPERT_TRAINING_INDEX].object);
    npcResults.removeAll(&resultSlots[RESULT_JOIN_GROUP_TEST_INDEX].object);
}

} // namespace

CatalogueInitializer::CatalogueInitializer()
{
    static const bool built = (buildTests(), buildResults(), true);
    Q_UNUSED(built);
}

const TestOrResultType* findType(const TestOrResultTypes& types, QStringView code)
{
    for (const TestOrResultType* type : types) {
        if (type && code.compare(type->code(), Qt::CaseInsensitive) == 0)
            return type;
    }
    return nullptr;
}

namespace test {
#define ARCANUM_DLG_DEFINE_TEST(NAME, CODE, ARGUMENTS, LABEL, KIND)                              \
    const TestOrResultType* const NAME = &testSlots[NAME##_INDEX].object;
ARCANUM_DLG_TESTS(ARCANUM_DLG_DEFINE_TEST)
const TestOrResultTypes& ALL_TESTS = vectorSlots[TESTS].object;
} // namespace test

namespace result {
#define ARCANUM_DLG_DEFINE_RESULT(NAME, CODE, ARGUMENTS, LABEL, KIND)                            \
    const TestOrResultType* const NAME = &resultSlots[NAME##_INDEX].object;
ARCANUM_DLG_RESULTS(ARCANUM_DLG_DEFINE_RESULT)
const TestOrResultTypes& ALL_PC_RESULTS = vectorSlots[PC_RESULTS].object;
const TestOrResultTypes& ALL_NPC_RESULTS = vectorSlots[NPC_RESULTS].object;
} // namespace result

} // namespace arcanum::dlg
