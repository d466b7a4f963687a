#include "JsonText.h"

#include "JsonOrder.h"

#include <QJsonArray>
#include <QJsonValue>
#include <QTextStream>

namespace {
QString indent(int depth)
{
    return QString(depth * 2, QLatin1Char(' '));
}
} // namespace

JsonText::JsonText(QTextStream& stream)
    : out(stream)
{
}

void JsonText::print(const QJsonObject& object, int depth)
{
    for (const QString& key : JsonOrder::keys(object)) {
        if (key != QLatin1String("text") || depth == 0)
            printMember(key, object.value(key), depth);
    }
}

void JsonText::printMember(const QString& key, const QJsonValue& value, int depth)
{
    if (isPlain(value)) {
        out << indent(depth) << key << ": " << plain(value) << '\n';
        return;
    }
    out << indent(depth) << key << ":\n";
    if (value.isObject()) {
        print(value.toObject(), depth + 1);
        return;
    }
    for (const QJsonValue& item : value.toArray())
        printItem(item, depth + 1);
}

void JsonText::printItem(const QJsonValue& value, int depth)
{
    if (isPlain(value)) {
        out << indent(depth) << "- " << plain(value) << '\n';
        return;
    }
    if (value.isArray()) {
        out << indent(depth) << "-\n";
        for (const QJsonValue& item : value.toArray())
            printItem(item, depth + 1);
        return;
    }
    const QJsonObject object = value.toObject();
    out << indent(depth) << "- " << plain(object.value(QLatin1String("text"))) << '\n';
    print(object, depth + 1);
}

bool JsonText::isPlain(const QJsonValue& value)
{
    return !value.isObject() && !value.isArray();
}

// Texts spanning lines stay on one line, with "\n" spelled out.
QString JsonText::plain(const QJsonValue& value)
{
    if (value.isString())
        return value.toString().replace(QLatin1Char('\n'), QLatin1String("\\n"));
    if (value.isBool())
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    if (value.isDouble())
        return QString::number(value.toDouble(), 'g', 16);
    return QString();
}
