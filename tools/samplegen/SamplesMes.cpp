// Message files of the sample game, one per category folder, and a dialogue file for the table view.
#include "SampleRegistry.h"

#include "DialogueFile.h"
#include "Mesfile.h"

#include <QTextCodec>

#include <memory>

namespace {

struct MessageSample
{
    const char* path;
    const char* codec;
    QString header;
    QStringList lines;
};

bool writeSample(const QDir& game, const MessageSample& sample)
{
    const QString path = QString::fromLatin1(sample.path);
    std::unique_ptr<arcanum::Mesfile> file;
    if (path.endsWith(QLatin1String(".dlg")))
        file = std::make_unique<arcanum::DialogueFile>();
    else
        file = std::make_unique<arcanum::Mesfile>();
    file->setHeader(sample.header);
    for (const QString& line : sample.lines)
        file->appendEntry(line);
    return file->save(game.filePath(path), QTextCodec::codecForName(sample.codec));
}

QList<MessageSample> messageSamples()
{
    return {
        {"data/mes/sample_items.mes", "UTF-8",
         QStringLiteral("// Item names and descriptions of the sample game\n"
                        "// written for qtLoreka's bundled example\n"),
         {QStringLiteral("{100}{Rusty dagger}"), QStringLiteral("{101}{Steam pistol}  // needs bullets"),
          QStringLiteral("{102}{Healing salve}"), QStringLiteral("{103}{Brass goggles}  // worn by tinkers"),
          QStringLiteral("{104}{Lantern}"), QStringLiteral("{105}{Bag of gears}"),
          QStringLiteral("{110}{A dagger of poor quality.\n\tIts edge is notched and brown.}"),
          QStringLiteral("{111}{A pistol of the newest make.\n\tIt smells of oil and powder.}  // long description"),
          QStringLiteral("{112}{A small pot of salve that closes wounds.}"),
          QStringLiteral("{113}{Goggles with smoked glass.}"), QStringLiteral("{114}{It burns for a night on one flask.}"),
          QStringLiteral("{115}{}  // left empty on purpose")}},
        {"data/mes/sample_russian.mes", "Windows-1251",
         QStringLiteral("// \u041F\u0440\u0438\u043C\u0435\u0440 \u0432 \u043A\u043E\u0434\u0438\u0440\u043E\u0432\u043A\u0435 Windows-1251\n"),
         {QStringLiteral("{10}{\u041F\u0440\u0438\u0432\u0435\u0442, \u043F\u0443\u0442\u043D\u0438\u043A!}"),
          QStringLiteral("{11}{\u0421\u0442\u0430\u0440\u044B\u0439 \u043C\u0435\u0447}"),
          QStringLiteral("{12}{\u041F\u0430\u0440\u043E\u0432\u043E\u0439 \u043F\u0438\u0441\u0442\u043E\u043B\u0435\u0442}  // \u043D\u0443\u0436\u043D\u044B \u043F\u0443\u043B\u0438")}},
        {"data/rules/sample_rules.mes", "UTF-8", QStringLiteral("// Primary statistics\n"),
         {QStringLiteral("{0}{Strength}"), QStringLiteral("{1}{Dexterity}"), QStringLiteral("{2}{Constitution}"),
          QStringLiteral("{3}{Beauty}"), QStringLiteral("{4}{Intelligence}"), QStringLiteral("{5}{Perception}"),
          QStringLiteral("{6}{Willpower}"), QStringLiteral("{7}{Charisma}")}},
        {"data/semes/sample_sounds.mes", "UTF-8", QString(),
         {QStringLiteral("{1000}{door_open.wav}"), QStringLiteral("{1001}{door_close.wav}"),
          QStringLiteral("{1002}{chest_open.wav}  // also used for crates")}},
        {"data/oemes/sample_objects.mes", "UTF-8", QString(),
         {QStringLiteral("{200}{Wooden chest}"), QStringLiteral("{201}{Iron gate}"), QStringLiteral("{202}{Lamp post}")}},
        {"data/dlg/sample_table.dlg", "UTF-8", QString(),
         {QStringLiteral("{1}{Welcome to the Brass Kettle, stranger.}{Welcome, my lady.}{}{}{}{}"),
          QStringLiteral("{2}{I need a room for the night.}{}{4}{}{10}{}"),
          QStringLiteral("{3}{Me want food!}{}{-3}{}{20}{}"),
          QStringLiteral("{4}{Never mind.}{}{4}{}{0}{}"),
          QStringLiteral("{10}{That will be ten coins.}{}{}{}{}{}"),
          QStringLiteral("{11}{Here you are.}{}{4}{$$ 10}{0}{$$ -10}"),
          QStringLiteral("{12}{Too rich for me.}{}{4}{}{0}{}"),
          QStringLiteral("{20}{You will get soup and be quiet.}{}{}{}{}{}"),
          QStringLiteral("{21}{Thanks.}{}{-3}{}{0}{}")}},
    };
}

bool writeMessages(const QDir& game)
{
    bool ok = true;
    for (const MessageSample& sample : messageSamples())
        ok = writeSample(game, sample) && ok;
    return ok;
}

const SampleRegistration registration("mes", &writeMessages);

} // namespace
