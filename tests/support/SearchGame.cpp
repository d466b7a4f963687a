#include "SearchGame.h"

#include "DatWriter.h"
#include "FormatChecks.h"
#include "Proto.h"
#include "ProtoMovableData.h"
#include "ProtoRecords.h"
#include "Script.h"

#include <QDir>
#include <QFile>

using arcanum::Proto;
using arcanum::Script;

namespace {

void setOperand(Script::Statement& statement, int slot, quint8 type, qint32 value)
{
    statement.types[size_t(slot)] = type;
    statement.values[size_t(slot)] = value;
}

QByteArray helperScript()
{
    Script script;
    script.addCondition(43); // global flag (num) is set
    Script::Statement* condition = script.getStatement(0, Script::LineIf);
    setOperand(*condition, 0, Script::Number, 42);
    Script::Statement* then = script.getStatement(0, Script::LineThen);
    then->code = 6; // change this script to script (num)
    setOperand(*then, 0, Script::Number, 30);
    Script::Statement* otherwise = script.getStatement(0, Script::LineElse);
    otherwise->code = 23; // float line (num) above (obj)
    setOperand(*otherwise, 0, Script::Number, 7);
    setOperand(*otherwise, 1, Script::Attachee, 0);
    script.addAction(10); // (num) = (num)
    Script::Statement* assign = script.getStatement(1, Script::LineDo);
    setOperand(*assign, 0, Script::GlobalVar, 42);
    setOperand(*assign, 1, Script::Number, 5);
    script.addAction(100); // set global flag (num) to true, the flag's number read from a variable
    setOperand(*script.getStatement(2, Script::LineDo), 0, Script::GlobalVar, 42);
    return script.toBytes();
}

QByteArray sword()
{
    Proto proto;
    proto.create(Proto::Weapon);
    Proto::Scripts& scripts = proto.asMovable()->scripts;
    scripts.present = 1;
    scripts.elementSize = Proto::Scripts::ELEMENT_SIZE;
    scripts.args[scripts.count++].number = 30;
    scripts.setMask(std::uint64_t(1) << Proto::WieldOn);
    const std::string bytes = proto.toBytes();
    return QByteArray(bytes.data(), qsizetype(bytes.size()));
}

const QByteArray TALK = "{1}{Hello there}{Hello, lady}{}{}{}{fl 7}\r\n"
                        "{2}{Ask about flags}{}{1}{gf 42 1}{10}{gv 42 3, jo 7 8}\r\n"
                        "{10}{Flag answer}{}{}{}{}{uw 8 2}\r\n";

bool writeLoose(const QString& path, const QByteArray& bytes)
{
    return QDir().mkpath(QFileInfo(path).path()) && FormatChecks::writeFile(path, bytes);
}

} // namespace

namespace SearchGame {

bool write(const QString& folder)
{
    QString error;
    const bool archived = arcanum::DatWriter::write(folder + QStringLiteral("/arcanum1.dat"),
        {{QStringLiteral("mes/override.mes"), "{1}{old words}\r\n"},
         {QStringLiteral("mes/shared.mes"), "{5}{Archived text}\r\n"},
         {QStringLiteral("dlg/00010talk.dlg"), TALK},
         {QStringLiteral("scr/00020helper.scr"), helperScript()}},
        error);
    return archived
        && writeLoose(folder + QStringLiteral("/data/mes/override.mes"), "{1}{new words}\r\n{2}{Second\r\nline with Needle}\r\n")
        && writeLoose(folder + QStringLiteral("/data/proto/sword.pro"), sword());
}

} // namespace SearchGame
