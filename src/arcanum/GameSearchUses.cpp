// Where a number is used: dialogue opcodes, script operands and prototype script points.
#include "GameSearch.h"

#include "DialogueCatalogue.h"
#include "DialogueFileNew.h"
#include "Proto.h"
#include "ProtoMovableData.h"
#include "Script.h"

namespace arcanum {

namespace {

using Mode = GameSearch::Mode;

// A dialogue opcode argument that holds a number of the given kind.
struct DialogueArgument
{
    const dlg::TestOrResultType* type;
    int argument; // 0: the first value, 1: the second
    Mode mode;
};

const QVector<DialogueArgument>& dialogueArguments()
{
    static const QVector<DialogueArgument> arguments = {
        {dlg::test::TEST_GLOBAL_FLAG, 0, Mode::Flag},         {dlg::result::RESULT_GLOBAL_FLAG, 0, Mode::Flag},
        {dlg::test::TEST_GLOBAL_VAR, 0, Mode::Variable},      {dlg::result::RESULT_GLOBAL_VAR, 0, Mode::Variable},
        {dlg::result::RESULT_FLOAT_LINE, 0, Mode::Message},   {dlg::result::RESULT_UNWAIT, 0, Mode::Message},
        {dlg::result::RESULT_JOIN_GROUP_TEST, 0, Mode::Message}, {dlg::result::RESULT_JOIN_GROUP_TEST, 1, Mode::Message}};
    return arguments;
}

bool usesNumber(const dlg::TestOrResultData& record, Mode mode, qint32 number)
{
    for (const DialogueArgument& use : dialogueArguments())
        if (use.type == record.type && use.mode == mode && (use.argument == 0 ? record.value1 : record.value2) == number)
            return true;
    return false;
}

// What a statement's text right before a Number operand says the number is, by the catalogue's words.
bool namedBy(const std::string& before, Mode mode)
{
    const auto endsWith = [&before](const char* words) {
        const std::string tail(words);
        return before.size() >= tail.size() && before.compare(before.size() - tail.size(), tail.size(), tail) == 0;
    };
    switch (mode) {
    case Mode::Flag: return endsWith("global flag ");
    case Mode::Script: return endsWith("script ");
    case Mode::Message: return endsWith("float line ") || endsWith("print line ") || endsWith("dialog ");
    case Mode::Variable:
    case Mode::Text: break;
    }
    return false;
}

bool operandUses(const Script::Token& token, const std::string& before, Mode mode, qint32 number)
{
    if (token.kind != Script::Token::Num || token.value != number)
        return false;
    if (token.numType == Script::GlobalFlag)
        return mode == Mode::Flag;
    if (token.numType == Script::GlobalVar)
        return mode == Mode::Variable;
    return token.numType == Script::Number && namedBy(before, mode);
}

// "set global flag (Number 12) to true".
QString sentence(const Script::Tokens& tokens)
{
    QString text;
    for (const Script::Token& token : tokens) {
        if (token.kind == Script::Token::Num)
            text += QStringLiteral("(%1 %2)")
                        .arg(QString::fromStdString(Script::numTypeToString(Script::NumType(token.numType))))
                        .arg(token.value);
        else if (token.kind == Script::Token::Obj)
            text += QStringLiteral("(%1)").arg(
                QString::fromStdString(Script::objectTypeToString(Script::ObjectType(token.value))));
        else
            text += QString::fromStdString(token.text);
    }
    return text.simplified();
}

bool statementUses(const Script::Tokens& tokens, Mode mode, qint32 number)
{
    std::string before;
    for (const Script::Token& token : tokens) {
        if (token.kind == Script::Token::Text)
            before = token.text;
        else if (operandUses(token, before, mode, number))
            return true;
    }
    return false;
}

} // namespace

QVector<GameSearch::Hit> GameSearch::searchDialogueNumbers(const QByteArray& bytes) const
{
    // A file that does not hold the digits at all cannot use the number.
    if (!bytes.contains(QByteArray::number(wanted.number)))
        return {};
    DialogueFileNew file;
    file.readBytes(bytes);
    QVector<Hit> hits;
    const auto look = [&](const DialogueFileNew::Line& line, const QVector<dlg::TestOrResultData>& records,
                          const char* field) {
        for (const dlg::TestOrResultData& record : records)
            if (usesNumber(record, wanted.mode, wanted.number))
                hits.append(Hit{QString(), QString(), line.sourceLine(), line.index(),
                                QStringLiteral("line %1, %2 %3").arg(line.index()).arg(QLatin1String(field), record.toString())});
    };
    for (const DialogueFileNew::PCLinePointer& line : file.pcLines()) {
        look(*line, line->tests().records(), "test");
        look(*line, line->results().records(), "result");
    }
    for (const DialogueFileNew::NPCLinePointer& line : file.npcLines())
        look(*line, line->results().records(), "result");
    std::stable_sort(hits.begin(), hits.end(), [](const Hit& a, const Hit& b) { return a.line < b.line; });
    return hits;
}

QVector<GameSearch::Hit> GameSearch::searchScript(const QString& gamePath, const QByteArray& bytes) const
{
    Script script;
    if (!script.loadBytes(gamePath, bytes))
        return {};
    QVector<Hit> hits;
    for (int i = 0; i < script.lineTotal(); ++i) {
        const Script::Line& line = script.getLines().at(size_t(i));
        const bool conditional = line.condition.code != 0;
        const QVector<QPair<const char*, Script::Tokens>> statements = conditional
            ? QVector<QPair<const char*, Script::Tokens>>{{"IF", Script::tokenizeCondition(line.condition)},
                                                          {"THEN", Script::tokenizeAction(line.thenAction)},
                                                          {"ELSE", Script::tokenizeAction(line.elseAction)}}
            : QVector<QPair<const char*, Script::Tokens>>{{"DO", Script::tokenizeAction(line.thenAction)}};
        for (const auto& [keyword, tokens] : statements)
            if (statementUses(tokens, wanted.mode, wanted.number))
                hits.append(Hit{QString(), QString(), i + 1, -1,
                                QStringLiteral("%1 %2").arg(QLatin1String(keyword), sentence(tokens))});
    }
    return hits;
}

QVector<GameSearch::Hit> GameSearch::searchPrototype(const QString& gamePath, const QByteArray& bytes) const
{
    Proto proto;
    if (!proto.loadBytes(gamePath.toStdString(), bytes.constData(), size_t(bytes.size())) || proto.asMovable() == nullptr)
        return {};
    const Proto::Scripts& scripts = proto.asMovable()->scripts;
    if (!scripts.isPresent())
        return {};
    QVector<Hit> hits;
    std::uint32_t stored = 0;
    for (std::uint32_t point = 0; point < Proto::SCRIPT_POINT_COUNT && stored < scripts.count; ++point) {
        if ((scripts.mask() >> point & 1u) == 0)
            continue;
        if (scripts.args.at(stored++).number == quint32(wanted.number))
            hits.append(Hit{QString(), QString(), 0, int(point),
                            QStringLiteral("script point %1: script %2")
                                .arg(QString::fromStdString(Proto::scriptPointToString(Proto::ScriptPoint(point))))
                                .arg(wanted.number)});
    }
    return hits;
}

} // namespace arcanum
