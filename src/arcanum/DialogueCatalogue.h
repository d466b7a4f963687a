#pragma once

#include "DialogueOpcodes.h"
#include "TestOrResultData.h"
#include "TestOrResultGuiSettings.h"
#include "TestOrResultType.h"

#include <QStringView>
#include <QVector>

// The catalogue of dialogue opcodes: one TestOrResultType per opcode, reachable through its named
// constant (arcanum::dlg::test::TEST_MONEY, arcanum::dlg::result::RESULT_XP, ...) and through the
// vectors of the opcode choosers. It is built once, before anything reads it, and never changes.
namespace arcanum::dlg {

using TestOrResultTypes = QVector<const TestOrResultType*>;

// Builds the catalogue the first time one is constructed. Every source file that includes this header
// holds one, constructed before its own static objects, so even their initialisers find the catalogue
// complete; the named constants themselves are fixed addresses and never change.
class CatalogueInitializer
{
public:
    CatalogueInitializer();
};
static const CatalogueInitializer catalogueInitializer;

// The first type of types whose code matches, ignoring letter case as the game does; null if none.
const TestOrResultType* findType(const TestOrResultTypes& types, QStringView code);

#define ARCANUM_DLG_DECLARE_CONSTANT(NAME, CODE, ARGUMENTS, LABEL, KIND) extern const TestOrResultType* const NAME;

namespace test {
ARCANUM_DLG_TESTS(ARCANUM_DLG_DECLARE_CONSTANT)
// The 37 tests in chooser order.
extern const TestOrResultTypes& ALL_TESTS;
} // namespace test

namespace result {
ARCANUM_DLG_RESULTS(ARCANUM_DLG_DECLARE_CONSTANT)
// The 35 results in chooser order, with RESULT_WAIT twice (positions 33 and 34): 36 entries.
extern const TestOrResultTypes& ALL_PC_RESULTS;
// ALL_PC_RESULTS without RESULT_EXPERT_TRAINING and RESULT_JOIN_GROUP_TEST: 34 entries.
extern const TestOrResultTypes& ALL_NPC_RESULTS;
} // namespace result

} // namespace arcanum::dlg
