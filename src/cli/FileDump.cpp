#include "FileDump.h"

#include "ScriptStatement.h"

#include "Artfile.h"
#include "DialogueFileNew.h"
#include "Mesfile.h"
#include "ProtoMovableData.h"
#include "Proto.h"
#include "Script.h"

#include <QFile>
#include <QJsonArray>

using namespace arcanum;

namespace {

QJsonObject failed(const QString& why)
{
    return QJsonObject{{"error", why}};
}

// A coded value with its name, e.g. "5 (Weapon)".
QString named(std::uint32_t value, const std::string& name)
{
    const QString text = QString::fromStdString(name);
    return text == QString::number(value) ? text : QStringLiteral("%1 (%2)").arg(value).arg(text);
}

QJsonArray paletteRows(const Artfile::Colour* colours)
{
    QJsonArray rows;
    for (unsigned row = 0; row < Artfile::PALETTE_SIZE; row += 16) {
        QStringList row16;
        for (unsigned i = row; i < row + 16; ++i)
            row16 << QStringLiteral("#%1").arg(colours[i].toRgb() & 0xFFFFFF, 6, 16, QLatin1Char('0'));
        rows.append(row16.join(QLatin1Char(' ')));
    }
    return rows;
}

QJsonArray opcodes(const QVector<dlg::TestOrResultData>& records)
{
    QJsonArray list;
    for (const dlg::TestOrResultData& record : records)
    {
        const QString description = record.type ? record.type->description() : QString();
        list.append(description.isEmpty() || description == record.type->code()
                        ? record.toString()
                        : QStringLiteral("%1 (%2)").arg(record.toString(), description));
    }
    return list;
}

QJsonObject lineObject(const DialogueFileNew::Line& line)
{
    QJsonObject object{{"index", line.index()}, {"text", line.text()}, {"file line", line.sourceLine()}};
    if (line.errors() && line.errors()->hasErrors())
        object.insert("errors", QJsonArray::fromStringList(line.errors()->messages));
    if (line.errors() && !line.errors()->notes.isEmpty())
        object.insert("notes", QJsonArray::fromStringList(line.errors()->notes));
    return object;
}

QJsonArray damages(const Proto::Damages& record, std::string (*name)(Proto::DamageType))
{
    QJsonArray list;
    unsigned stored = 0;
    for (std::uint32_t bit = 0; bit < Proto::Damages::ROOM; ++bit) {
        if (record.maskLow & (1u << bit) && stored < Proto::Damages::ROOM)
            list.append(QStringLiteral("%1: %2").arg(QString::fromStdString(name(Proto::DamageType(bit))))
                            .arg(record.values[stored++]));
    }
    return list;
}

std::string resistanceName(Proto::DamageType type)
{
    return Proto::resistanceTypeToString(Proto::ResistanceType(type));
}

} // namespace

QJsonObject FileDump::mes(const QString& path, QTextCodec* codec)
{
    Mesfile file(path);
    if (!file.load(codec))
        return failed(QStringLiteral("cannot be read as a message file"));
    QJsonArray entries;
    for (int i = 0; i < file.getEntryCount(); ++i) {
        const Mesfile::Entry* entry = file.getEntryAt(i);
        // An entry that could not be read has no text of its own: it is shown as the line it stands on.
        QJsonObject object{{"index", entry->getMesIndex()}, {"file line", entry->getSourceLine()}};
        if (entry->isValid()) {
            object.insert("text", entry->getItemAt(0));
            if (!entry->getComment().isEmpty())
                object.insert("comment", entry->getComment());
        } else {
            object.insert("text", entry->getLine().trimmed());
            object.insert("error", entry->getValidationError());
        }
        entries.append(object);
    }
    return QJsonObject{{"header", file.getHeader()}, {"entries", entries}};
}

QJsonObject FileDump::dialogue(const QString& path, QTextCodec* codec)
{
    QFile file(path);
    DialogueFileNew dialogue(&file);
    dialogue.setCodec(codec);
    if (!dialogue.load())
        return failed(QStringLiteral("cannot be read"));
    QJsonArray npc;
    for (const DialogueFileNew::NPCLinePointer& line : dialogue.npcLines()) {
        QJsonObject object = lineObject(*line);
        object.insert("female text", line->femaleText());
        object.insert("response line", line->responseLine());
        object.insert("results", opcodes(line->results().records()));
        npc.append(object);
    }
    QJsonArray pc;
    for (const DialogueFileNew::PCLinePointer& line : dialogue.pcLines()) {
        QJsonObject object = lineObject(*line);
        object.insert("gender", line->gender());
        object.insert("intelligence", line->intelligence());
        object.insert("tests", opcodes(line->tests().records()));
        object.insert("response line", line->responseLine());
        object.insert("results", opcodes(line->results().records()));
        pc.append(object);
    }
    return QJsonObject{{"NPC lines", npc}, {"PC lines", pc}, {"unread text", dialogue.unreadText()}};
}

QJsonObject FileDump::script(const QString& path)
{
    Script script;
    if (!script.load(path))
        return failed(QStringLiteral("cannot be read as a script (its name must begin with the script number)"));
    QJsonArray lines;
    for (int i = 0; i < script.lineTotal(); ++i) {
        QStringList sentence;
        QJsonArray statements;
        for (const ScriptStatement& statement : ScriptStatement::ofLine(script, i)) {
            sentence << statement.keyword() + QLatin1Char(' ') + statement.sentence();
            statements.append(statement.toJson());
        }
        lines.append(QJsonObject{{"text", QStringLiteral("%1: %2").arg(i).arg(sentence.join(QLatin1Char(' ')))},
                                 {"statements", statements}});
    }
    return QJsonObject{{"number", script.getId()},
                       {"description", QString::fromLatin1(script.getHeader().desc().c_str())},
                       {"lines", lines}};
}

QJsonObject FileDump::art(const QString& path)
{
    Artfile art;
    art.load(QFile::encodeName(path).toStdString());
    if (!art.isLoaded())
        return failed(QStringLiteral("offset 0x%1: %2").arg(art.loadFailureOffset(), 0, 16).arg(artFailure(art)));
    QJsonArray palettes;
    for (unsigned p = 0; p < art.getPaletteCount(); ++p)
        palettes.append(QJsonObject{{"text", QStringLiteral("palette %1").arg(p)}, {"colours", paletteRows(art.getPalette(p))}});
    QJsonArray frames;
    for (unsigned i = 0; i < art.getImageCount(); ++i) {
        for (unsigned f = 0; f < art.getFrameCount(); ++f) {
            const Artfile::Image* frame = art.getImage(i, f);
            frames.append(QJsonObject{
                {"text", QStringLiteral("image %1 frame %2: %3x%4").arg(i).arg(f).arg(frame->width).arg(frame->height)},
                {"image", int(i)}, {"frame", int(f)}, {"width", qint64(frame->width)}, {"height", qint64(frame->height)},
                {"left", frame->left}, {"top", frame->top}, {"dx", frame->dx}, {"dy", frame->dy},
                {"encoding", frame->isRaw() ? "raw" : "run-length"}, {"data bytes", qint64(frame->dataSize)}});
        }
    }
    return QJsonObject{{"header", artHeader(art)}, {"palettes", palettes}, {"frames", frames}};
}

QString FileDump::artFailure(const Artfile& art)
{
    return art.loadFailure().isEmpty() ? QStringLiteral("holds no images") : art.loadFailure();
}

QJsonObject FileDump::artHeader(const Artfile& art)
{
    QJsonArray words;
    for (unsigned offset = 0; offset < 36; offset += 4)
        words.append(QStringLiteral("0x%1").arg(art.headerWord(offset), 8, 16, QLatin1Char('0')));
    return QJsonObject{{"type", qint64(art.headerWord(0))},
                       {"animated", art.isAnimated()},
                       {"palettes", int(art.getPaletteCount())},
                       {"images", int(art.getImageCount())},
                       {"frames per image", int(art.getFrameCount())},
                       {"first header words", words}};
}

QJsonObject FileDump::proto(const QString& path)
{
    Proto proto;
    proto.load(QFile::encodeName(path).toStdString());
    if (!proto.isLoaded())
        return failed(QStringLiteral("offset 0x%1: %2")
                          .arg(proto.loadFailureOffset(), 0, 16)
                          .arg(QString::fromStdString(proto.loadFailure())));
    const Proto::Header& head = proto.header();
    QJsonObject object{{"index", qint64(head.index)},
                       {"item type", named(head.itemType, Proto::itemTypeToString(Proto::ItemType(head.itemType)))}};
    const QJsonObject fields = protoFields(proto);
    for (auto it = fields.constBegin(); it != fields.constEnd(); ++it)
        object.insert(it.key(), it.value());
    return object;
}

QJsonObject FileDump::protoFields(const Proto& proto)
{
    QJsonObject object;
    if (const auto* block = dynamic_cast<const Proto::ObjectData*>(proto.getData())) {
        object.insert("hit points", qint64(block->hitPoints));
        object.insert("material", named(block->material, Proto::materialTypeToString(Proto::MaterialType(block->material))));
        object.insert("resistances", damages(block->resistances, &resistanceName));
    }
    if (const Proto::MovableData* item = proto.asMovable()) {
        object.insert("weight", qint64(item->weight));
        object.insert("worth", qint64(item->worth));
        object.insert("mana store", qint64(item->manaStore));
        object.insert("magic complexity", qint64(item->magicComplexity));
        QJsonArray scripts;
        for (std::uint32_t point = 0; point < Proto::SCRIPT_POINT_COUNT; ++point) {
            if (item->scripts.mask() >> point & 1u)
                scripts.append(QString::fromStdString(Proto::scriptPointToString(Proto::ScriptPoint(point))));
        }
        object.insert("script points", scripts);
    }
    if (const Proto::WeaponData* weapon = proto.asWeapon()) {
        object.insert("to hit", qint64(weapon->toHit));
        object.insert("minimum damage", damages(weapon->minDamages, &Proto::damageTypeToString));
        object.insert("maximum damage", damages(weapon->maxDamages, &Proto::damageTypeToString));
        object.insert("ammo type", named(weapon->ammoType, Proto::ammoTypeToString(Proto::AmmoType(weapon->ammoType))));
        object.insert("critical hit", named(weapon->criticalHit, Proto::criticalHitToString(Proto::CriticalHit(weapon->criticalHit))));
        object.insert("critical miss",
                      named(weapon->criticalMiss, Proto::criticalMissToString(Proto::CriticalMiss(weapon->criticalMiss))));
    }
    if (const Proto::ArmorData* armour = proto.asArmor()) {
        object.insert("armour class", qint64(armour->armorClass));
        object.insert("armour resistances", damages(armour->armorResistances, &resistanceName));
    }
    if (const Proto::SchematicData* schematic = proto.asSchematic())
        object.insert("scroll type", named(schematic->scrollType, Proto::scrollTypeToString(Proto::ScrollType(schematic->scrollType))));
    if (const Proto::CritterData* critter = proto.asCritter())
        object.insert("data block bytes", qint64(critter->bytes.size()));
    if (proto.asWall())
        object.insert("data block bytes", qint64(Proto::WallData::SIZE));
    return object;
}

QJsonObject FileDump::palette(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failed(file.errorString());
    Artfile::Colour colours[Artfile::PALETTE_SIZE]{};
    const QByteArray bytes = file.readAll();
    Artfile::paletteFromBytes(bytes, colours);
    return QJsonObject{{"bytes", qint64(bytes.size())}, {"colours", paletteRows(colours)}};
}
