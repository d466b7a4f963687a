#include "OpcodeWords.h"

#include "DialogueCatalogue.h"

#include <QCoreApplication>
#include <QHash>

namespace arcanum::dlg {

namespace {

// Abbreviations of the constant names, spelled out.
const QHash<QString, QString>& spelledOut()
{
    static const QHash<QString, QString> words = {
        {QStringLiteral("apt"), QStringLiteral("aptitude")}, {QStringLiteral("num"), QStringLiteral("number of")},
        {QStringLiteral("var"), QStringLiteral("variable")}, {QStringLiteral("neg"), QStringLiteral("negative")},
        {QStringLiteral("pc"), QStringLiteral("PC")},        {QStringLiteral("npc"), QStringLiteral("NPC")},
        {QStringLiteral("xp"), QStringLiteral("experience")}, {QStringLiteral("char"), QStringLiteral("character")},
        {QStringLiteral("test"), QString()}};
    return words;
}

// The names of the arguments, by constant name without its TEST_ or RESULT_ prefix.
const QHash<QString, QStringList>& argumentTable()
{
    const QString flag = QStringLiteral("flag"), value = QStringLiteral("value"),
                  variable = QStringLiteral("variable"), quest = QStringLiteral("quest"),
                  state = QStringLiteral("state"), skill = QStringLiteral("skill"), level = QStringLiteral("level");
    static const QHash<QString, QStringList> table = {
        {QStringLiteral("GLOBAL_FLAG"), {flag, value}},
        {QStringLiteral("LOCAL_FLAG"), {flag, value}},
        {QStringLiteral("PC_FLAG"), {flag, value}},
        {QStringLiteral("GLOBAL_VAR"), {variable, value}},
        {QStringLiteral("PC_VAR"), {variable, value}},
        {QStringLiteral("LOCAL_COUNTER"), {QStringLiteral("counter"), value}},
        {QStringLiteral("QUEST_STATE_GREATER_OR_EQUAL"), {quest, state}},
        {QStringLiteral("QUEST_STATE_SMALLER_OR_EQUAL"), {quest, state}},
        {QStringLiteral("QUEST_IN_STATE"), {quest, state}},
        {QStringLiteral("QUEST_STATE"), {quest, state}},
        {QStringLiteral("KNOWS_NUM_SPELLS_IN_COLLEGE"), {QStringLiteral("college"), QStringLiteral("count")}},
        {QStringLiteral("SKILL"), {skill, level}},
        {QStringLiteral("TRAINING_STATE"), {skill, level}},
        {QStringLiteral("EXPERT_TRAINING"), {skill, level}},
        {QStringLiteral("JOIN_GROUP_TEST"), {QStringLiteral("line if yes"), QStringLiteral("line if no")}},
        {QStringLiteral("NEWSPAPER"), {QStringLiteral("newspaper"), QStringLiteral("days")}},
        {QStringLiteral("UNWAIT"), {QStringLiteral("line"), QStringLiteral("hours")}},
        {QStringLiteral("HAS_ITEM"), {QStringLiteral("item")}},
        {QStringLiteral("NOT_HAVE_ITEM"), {QStringLiteral("item")}},
        {QStringLiteral("TRANSFER_ITEM"), {QStringLiteral("item")}},
        {QStringLiteral("FLOAT_LINE"), {QStringLiteral("line")}},
        {QStringLiteral("KNOWS_AREA"), {QStringLiteral("area")}},
        {QStringLiteral("IN_AREA"), {QStringLiteral("area")}},
        {QStringLiteral("MARK_MAP"), {QStringLiteral("area")}},
        {QStringLiteral("HAS_RUMOUR"), {QStringLiteral("rumour")}},
        {QStringLiteral("RUMOUR_QUELLED"), {QStringLiteral("rumour")}},
        {QStringLiteral("ADD_RUMOUR"), {QStringLiteral("rumour")}},
        {QStringLiteral("QUELL_RUMOUR"), {QStringLiteral("rumour")}},
        {QStringLiteral("RACE"), {QStringLiteral("race")}},
        {QStringLiteral("ORIGIN"), {QStringLiteral("origin")}},
        {QStringLiteral("REPUTATION"), {QStringLiteral("reputation")}},
        {QStringLiteral("STORY_STATE"), {state}},
        {QStringLiteral("TRAINING"), {skill}},
        {QStringLiteral("FOLLOWER_IN_PARTY"), {QStringLiteral("follower")}}};
    return table;
}

const QHash<const TestOrResultType*, QString>& constantNames()
{
    static const QHash<const TestOrResultType*, QString> names = [] {
        QHash<const TestOrResultType*, QString> all;
#define ARCANUM_DLG_NAME_TEST(NAME, CODE, ARGUMENTS, LABEL, KIND) all.insert(test::NAME, QStringLiteral(#NAME).mid(5));
#define ARCANUM_DLG_NAME_RESULT(NAME, CODE, ARGUMENTS, LABEL, KIND)                              \
    all.insert(result::NAME, QStringLiteral(#NAME).mid(7));
        ARCANUM_DLG_TESTS(ARCANUM_DLG_NAME_TEST)
        ARCANUM_DLG_RESULTS(ARCANUM_DLG_NAME_RESULT)
        return all;
    }();
    return names;
}

} // namespace

QString OpcodeWords::meaning(const TestOrResultType* type)
{
    const QString name = constantNames().value(type);
    QStringList words;
    for (const QString& part : name.toLower().split(QLatin1Char('_'), Qt::SkipEmptyParts)) {
        const auto spelled = spelledOut().constFind(part);
        const QString word = spelled == spelledOut().constEnd() ? part : *spelled;
        if (!word.isEmpty())
            words.append(word);
    }
    return QCoreApplication::translate("OpcodeWords", words.join(QLatin1Char(' ')).toUtf8().constData());
}

QStringList OpcodeWords::argumentNames(const TestOrResultType* type)
{
    if (type == nullptr)
        return {};
    QStringList names = argumentTable().value(constantNames().value(type));
    const QString fallback = QCoreApplication::translate("OpcodeWords", "value");
    while (names.size() < type->argumentCount())
        names.append(names.isEmpty() ? fallback : QStringLiteral("%1 %2").arg(fallback).arg(names.size() + 1));
    return names.mid(0, type->argumentCount());
}

bool OpcodeWords::namesArguments(const TestOrResultType* type)
{
    return argumentTable().contains(constantNames().value(type));
}

QList<int> OpcodeWords::lineArguments(const TestOrResultType* type)
{
    QList<int> positions;
    if (type == nullptr || !namesArguments(type))
        return positions;
    const QStringList names = argumentTable().value(constantNames().value(type));
    for (int i = 0; i < names.size() && i < type->argumentCount(); ++i)
        if (names.at(i).startsWith(QLatin1String("line")))
            positions.append(i);
    return positions;
}

QString OpcodeWords::label(const TestOrResultType* type)
{
    return type == nullptr ? QString() : QStringLiteral("%1 — %2").arg(type->code(), meaning(type));
}

} // namespace arcanum::dlg
