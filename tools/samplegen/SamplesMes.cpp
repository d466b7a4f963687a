// Message files of the sample game, one per category folder.
#include "SampleRegistry.h"

#include <QTextCodec>

namespace {

QByteArray crlf(const QString& text)
{
    QString out = text;
    out.replace(QLatin1String("\n"), QLatin1String("\r\n"));
    return out.toUtf8();
}

bool writeMessages(const QDir& game)
{
    bool ok = SampleRegistry::writeBytes(game, QStringLiteral("data/mes/sample_items.mes"), crlf(QStringLiteral(
        "// Item names of the sample game\n"
        "// written for qtLoreka's bundled example\n"
        "{100}{Rusty dagger}\n"
        "{101}{Steam pistol}  // needs bullets\n"
        "{102}{Healing salve}\n"
        "{110}{A dagger of poor quality.\n"
        "\tIts edge is notched and brown.}\n")));
    ok = SampleRegistry::writeBytes(game, QStringLiteral("data/rules/sample_rules.mes"), crlf(QStringLiteral(
        "{0}{Strength}\n"
        "{1}{Dexterity}\n"
        "{2}{Constitution}\n"
        "{3}{Beauty}\n"))) && ok;
    ok = SampleRegistry::writeBytes(game, QStringLiteral("data/semes/sample_sounds.mes"), crlf(QStringLiteral(
        "{1000}{door_open.wav}\n"
        "{1001}{door_close.wav}\n"))) && ok;
    ok = SampleRegistry::writeBytes(game, QStringLiteral("data/oemes/sample_objects.mes"), crlf(QStringLiteral(
        "{200}{Wooden chest}\n"
        "{201}{Iron gate}\n"))) && ok;
    QTextCodec* cp1251 = QTextCodec::codecForName("Windows-1251");
    QString russian = QStringLiteral("{10}{\u041F\u0440\u0438\u0432\u0435\u0442, \u043F\u0443\u0442\u043D\u0438\u043A!}\n"
                                     "{11}{\u0421\u0442\u0430\u0440\u044B\u0439 \u043C\u0435\u0447}\n");
    russian.replace(QLatin1String("\n"), QLatin1String("\r\n"));
    return SampleRegistry::writeBytes(game, QStringLiteral("data/mes/sample_russian.mes"), cp1251->fromUnicode(russian))
        && ok;
}

const SampleRegistration registration("mes", &writeMessages);

} // namespace
