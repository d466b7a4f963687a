#pragma once

#include <QJsonObject>
#include <QString>

class QJsonValue;
class QTextStream;

// Prints a dump as indented text: "key: value" for plain values, nested blocks for objects, one
// "- " item per array element. An object with a "text" member is headed by that text.
class JsonText
{
public:
    explicit JsonText(QTextStream& out);
    void print(const QJsonObject& object, int depth = 0);

private:
    void printMember(const QString& key, const QJsonValue& value, int depth);
    void printItem(const QJsonValue& value, int depth);
    static QString plain(const QJsonValue& value);
    static bool isPlain(const QJsonValue& value);

    QTextStream& out;
};
