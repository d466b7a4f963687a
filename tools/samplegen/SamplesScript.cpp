// Scripts of the sample game: a guard, a night watch and a quest giver, with conditions, DO lines
// and number operands of several kinds.
#include "SampleRegistry.h"

#include "Script.h"
#include "constants.h"

#include <initializer_list>

namespace {

using arcanum::Script;

// One operand slot: a number (its kind and value) or an object (its kind only).
struct Operand
{
    quint8 type;
    qint32 value;
};

Operand num(Script::NumType type, qint32 value)
{
    return {type, value};
}

Operand obj(Script::ObjectType type)
{
    return {type, 0};
}

void fill(Script::Statement& statement, qint32 code, std::initializer_list<Operand> operands)
{
    statement.code = code;
    size_t slot = 0;
    for (const Operand& operand : operands) {
        statement.types[slot] = operand.type;
        statement.values[slot] = operand.value;
        ++slot;
    }
}

// Builds scripts line by line in the order they are written.
class ScriptBuilder
{
public:
    explicit ScriptBuilder(const char* description) { script.getHeader().setDesc(description); }

    ScriptBuilder& doLine(qint32 action, std::initializer_list<Operand> operands = {})
    {
        script.addAction(action);
        fill(*script.getStatement(last(), Script::LineDo), action, operands);
        return *this;
    }

    ScriptBuilder& ifLine(qint32 condition, std::initializer_list<Operand> operands)
    {
        script.addCondition(condition);
        fill(*script.getStatement(last(), Script::LineIf), condition, operands);
        return *this;
    }

    ScriptBuilder& then(qint32 action, std::initializer_list<Operand> operands = {})
    {
        fill(*script.getStatement(last(), Script::LineThen), action, operands);
        return *this;
    }

    ScriptBuilder& otherwise(qint32 action, std::initializer_list<Operand> operands = {})
    {
        fill(*script.getStatement(last(), Script::LineElse), action, operands);
        return *this;
    }

    bool save(const QDir& game, const char* name) const
    {
        return script.save(game.filePath(arcanum::SCRIPTS_DIR + QString::fromLatin1(name)));
    }

private:
    int last() const { return script.lineTotal() - 1; }

    Script script;
};

bool gateGuard(const QDir& game)
{
    return ScriptBuilder("Gate guard: toll for the bridge")
        .ifLine(3, {num(Script::Number, 0)})
        .then(2)
        .otherwise(8, {num(Script::Number, 0)})
        .ifLine(2, {obj(Script::Triggerer), num(Script::Number, 50)})
        .then(35, {obj(Script::Triggerer), num(Script::Number, -50)})
        .otherwise(4, {num(Script::Number, 120)})
        .doLine(23, {num(Script::Number, 1), obj(Script::Attachee)})
        .doLine(1)
        .save(game, "00001gate_guard.scr");
}

bool nightWatch(const QDir& game)
{
    return ScriptBuilder("Night watch: patrol and lamps")
        .ifLine(1, {})
        .then(45, {obj(Script::Attachee), num(Script::Number, 1200), num(Script::Number, 860)})
        .otherwise(46, {obj(Script::Attachee), num(Script::Number, 1190), num(Script::Number, 904)})
        .doLine(10, {num(Script::LocalVar, 2), num(Script::GlobalVar, 17)})
        .ifLine(5, {num(Script::LocalVar, 2), num(Script::Number, 3)})
        .then(11, {num(Script::LocalVar, 2), num(Script::LocalVar, 2), num(Script::Number, 1)})
        .otherwise(3, {num(Script::Number, 0)})
        .doLine(18, {obj(Script::EverySceneryInVicinity)})
        .doLine(56, {obj(Script::CurrentLoopedObject)})
        .doLine(19)
        .doLine(2)
        .save(game, "00002night_watch.scr");
}

bool questGiver(const QDir& game)
{
    return ScriptBuilder("Quest giver: the lost ring")
        .ifLine(6, {obj(Script::Triggerer), num(Script::Number, 1001), num(Script::Number, 2)})
        .then(16, {obj(Script::Triggerer), num(Script::Number, 1001), num(Script::Number, 3)})
        .otherwise(0)
        .ifLine(17, {obj(Script::Player), num(Script::Number, 6050)})
        .then(126, {num(Script::Number, 6050), obj(Script::Player)})
        .otherwise(4, {num(Script::Number, 200)})
        .ifLine(43, {num(Script::GlobalFlag, 12)})
        .then(63, {obj(Script::Triggerer), num(Script::PcVar, 5)})
        .otherwise(100, {num(Script::Number, 12)})
        .doLine(102, {num(Script::Number, 2), num(Script::Number, 0), num(Script::Number, 0), obj(Script::Triggerer),
                      num(Script::Number, 5001), num(Script::Number, 300), num(Script::Number, 420)})
        .doLine(1)
        .save(game, "00003quest_giver.scr");
}

bool writeScripts(const QDir& game)
{
    const bool guard = gateGuard(game);
    const bool watch = nightWatch(game);
    return questGiver(game) && guard && watch;
}

const SampleRegistration registration("scr", &writeScripts);

} // namespace
