#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

// The members of a dump in the order of the file's fields ("index" before "text" before "response
// line" …) instead of QJsonObject's alphabetical order, for the text and the JSON a dump prints.
// Keys the order does not know come after the known ones, alphabetically.
class JsonOrder
{
public:
    static QStringList keys(const QJsonObject& object);
    // value as indented JSON, objects with their members in this order.
    static QByteArray toJson(const QJsonValue& value, int depth = 0);
};
