// A dialogue of the sample game: a tavern keeper and the player's answers, written by the dialogue model.
#include "SampleRegistry.h"

#include "DialogueFileNew.h"

#include <QFile>

namespace {

using arcanum::DialogueFileNew;

class SampleDialogue
{
public:
    // The six items after the index, as a file holds them: text, gender or female text, intelligence,
    // tests, response line, results.
    void npc(int index, const QStringList& items, const QString& trailing = QString())
    {
        dialogue.npcLines() << DialogueFileNew::NPCLinePointer(new DialogueFileNew::NPCLine(index, items, trailing));
    }
    void pc(int index, const QStringList& items, const QString& trailing = QString())
    {
        dialogue.pcLines() << DialogueFileNew::PCLinePointer(new DialogueFileNew::PCLine(index, items, trailing));
    }
    bool save(const QString& path)
    {
        dialogue.sortLines();
        QFile file(path);
        return dialogue.save(&file);
    }

private:
    DialogueFileNew dialogue;
};

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

void greeting(SampleDialogue& d)
{
    d.npc(1, {text("Welcome to the Rusty Cog, stranger. What will it be?"),
              text("Welcome to the Rusty Cog, my lady. What will it be?"), {}, {}, {}, {}});
    d.pc(2, {text("I am looking for work."), {}, text("4"), {}, text("10"), {}});
    d.pc(3, {text("Food. Now."), {}, text("-4"), {}, text("20"), {}});
    d.pc(4, {text("I seek my brother, a gnome named Tobbin."), text("1"), text("8"), text("qu 5 2"), text("30"), {}});
    d.pc(5, {text("Have you seen a lady in a red coat?"), text("0"), text("8"), text("re 40"), text("30"), {}});
    d.pc(6, {text("Here is what I owe you."), {}, text("5"), text("$$ 100, gf 12 1"), text("40"),
             text("$$ -100, gv 7 1")});
    d.pc(7, {text("Farewell."), {}, text("1"), {}, text("0"), {}});
}

void answers(SampleDialogue& d)
{
    d.npc(10, {text("There is always work for willing hands.\nSee the foreman at the docks."), {}, {}, {}, {},
               text("qu 5 1")});
    d.pc(11, {text("I will go at once."), {}, text("1"), {}, text("0"), text("mm 3")});
    d.npc(20, {text("Mind your manners, or mind the door."), {}, {}, {}, {}, text("re -5")});
    d.pc(21, {text("Sorry."), {}, text("-4"), {}, text("1"), {}});
    d.pc(22, {text("Make me."), {}, text("-4"), {}, text("0"), text("co")}, text(" // starts a fight"));
    d.npc(30, {text("Tobbin? He left for Tarant last week."), {}, {}, {}, text("1"), text("gf 12 1")});
    d.npc(40, {text("Much obliged. Your debt is settled."), {}, {}, {}, {}, text("al 1")});
    d.npc(50, {text("Добро пожаловать, путник!"), text("Добро пожаловать, путница!"), {}, {}, {}, {}});
    d.pc(51, {text("Спасибо."), {}, text("1"), {}, text("0"), {}});
}

// Two lines a careless modder might write: an unknown test and a response line that is not a number.
void mistakes(SampleDialogue& d)
{
    d.pc(41, {text("I want a discount."), {}, text("5"), text("zz 1"), text("40"), {}});
    d.pc(42, {text("Let us haggle."), {}, text("5"), text("ha 3"), text("later"), {}});
}

// The game's data stays clean; the same dialogue with mistakes lies outside "data/", to show how the
// dialogue editor marks lines it cannot read.
bool writeDialogue(const QDir& game)
{
    SampleDialogue clean;
    greeting(clean);
    answers(clean);
    SampleDialogue damaged;
    greeting(damaged);
    answers(damaged);
    mistakes(damaged);
    return clean.save(game.filePath(QStringLiteral("data/dlg/sample_dialogue.dlg")))
        && game.mkpath(QStringLiteral("damaged"))
        && damaged.save(game.filePath(QStringLiteral("damaged/sample_dialogue_damaged.dlg")));
}

const SampleRegistration registration("dialogue", &writeDialogue);

} // namespace
