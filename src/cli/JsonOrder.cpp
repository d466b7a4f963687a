#include "JsonOrder.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

// Across every dump a key has one place: where its field stands in its file.
const QStringList FIELD_ORDER = {
    "file", "encoding",
    // an archive's directory entry
    "path", "size", "packed", "method",
    // headers
    "header", "description", "first header words", "item type", "data bytes", "data block bytes",
    // art: header, palettes, then frames
    "animated", "frames per image", "palettes", "colours", "images", "image", "frame", "width", "height", "left",
    "top", "dx", "dy", "bytes", "raw",
    // message and dialogue entries: {index}{text}{female text | gender}{intelligence}{tests}{response}{results}
    "index", "number", "text", "female text", "gender", "intelligence", "tests", "response line", "results",
    "comment",
    // scripts: a line's statements and their operands
    "keyword", "code", "condition", "action", "type", "value", "object", "operands", "statements", "lines",
    // prototypes: the data block's fields in file order
    "hit points", "material", "resistances", "weight", "worth", "mana store", "magic complexity", "script points",
    "to hit", "minimum damage", "maximum damage", "ammo type", "critical hit", "critical miss", "armour class",
    "armour resistances", "scroll type",
    "entries", "NPC lines", "PC lines", "unread text", "file line", "error", "errors", "notes"};

int rank(const QString& key)
{
    const qsizetype at = FIELD_ORDER.indexOf(key);
    return at < 0 ? int(FIELD_ORDER.size()) : int(at);
}

QByteArray indent(int depth)
{
    return QByteArray(depth * 4, ' ');
}

QByteArray scalar(const QJsonValue& value)
{
    // A one-element array lets QJsonDocument spell and escape the value.
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

} // namespace

QStringList JsonOrder::keys(const QJsonObject& object)
{
    QStringList keys = object.keys(); // alphabetical
    std::stable_sort(keys.begin(), keys.end(), [](const QString& a, const QString& b) { return rank(a) < rank(b); });
    return keys;
}

QByteArray JsonOrder::toJson(const QJsonValue& value, int depth)
{
    QByteArrayList members;
    QByteArray open = "{";
    QByteArray close = "}";
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (const QString& key : keys(object))
            members << indent(depth + 1) + scalar(key) + ": " + toJson(object.value(key), depth + 1);
    } else if (value.isArray()) {
        open = "[";
        close = "]";
        for (const QJsonValue& item : value.toArray())
            members << indent(depth + 1) + toJson(item, depth + 1);
    } else {
        return scalar(value);
    }
    if (members.isEmpty())
        return open + close;
    return open + '\n' + members.join(",\n") + '\n' + indent(depth) + close;
}
