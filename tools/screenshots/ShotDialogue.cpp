// The Dialogue tab with the sample dialogue open: a PC line with tests and results in its form, an
// NPC line with a female variant, and a line with problems.
#include "ShotRegistry.h"

#include "ConversationView.h"
#include "DialogueEditWidget.h"
#include "Document.h"
#include "MainWindow.h"
#include "constants.h"

#include <QDir>
#include <QPushButton>

namespace {

DialogueEditWidget& dialogueOpen(MainWindow& window, const QString& relativePath)
{
    ShotRegistry::showTab(window, 2);
    DialogueEditWidget& page = *window.dialoguePage();
    const QString path = QDir::current().absoluteFilePath(relativePath);
    if (!page.document() || page.document()->path() != path)
        page.openFile(path);
    return page;
}

DialogueEditWidget& sampleDialogue(MainWindow& window)
{
    return dialogueOpen(window, arcanum::DLG_DIR + QStringLiteral("sample_dialogue.dlg"));
}

QWidget* pcLine(MainWindow& window)
{
    sampleDialogue(window).openPcLine(6);
    return nullptr;
}

QWidget* npcLine(MainWindow& window)
{
    sampleDialogue(window).openNpcLine(1);
    return nullptr;
}

QWidget* brokenLine(MainWindow& window)
{
    dialogueOpen(window, QStringLiteral("damaged/sample_dialogue_damaged.dlg")).openPcLine(41);
    return nullptr;
}

QWidget* conversation(MainWindow& window)
{
    DialogueEditWidget& page = sampleDialogue(window);
    if (auto* button = page.findChild<QPushButton*>(QStringLiteral("buttonGraph")))
        button->click();
    auto* view = page.findChild<ConversationView*>();
    if (view == nullptr)
        return nullptr;
    view->window()->resize(1000, 720);
    ShotRegistry::settle();
    view->fitAll();
    return view->window();
}

const ShotRegistration shot(30, "tab-3-dialogue", &pcLine);
const ShotRegistration graphShot(33, "dialogue-conversation-graph", &conversation);
const ShotRegistration npcShot(31, "tab-3-dialogue-npc", &npcLine);
const ShotRegistration errorShot(32, "tab-3-dialogue-errors", &brokenLine);

} // namespace
