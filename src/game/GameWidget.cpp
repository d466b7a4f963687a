#include "GameWidget.h"

#include "DatWriter.h"
#include "Prompt.h"
#include "SafeSave.h"

#include "gui.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFutureWatcher>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QtConcurrent>

#include <atomic>

using arcanum::GameView;

namespace {

constexpr int FILE_ROLE = Qt::UserRole;
enum Column { NameColumn, SizeColumn, SourceColumn };

} // namespace

GameWidget::GameWidget(QWidget* parent)
    : QWidget(parent)
    , filter(new QLineEdit(this))
    , tree(new QTreeWidget(this))
    , summary(new QLabel(this))
    , moduleBox(new QComboBox(this))
{
    setObjectName(QStringLiteral("GameWidget"));
    filter->setObjectName(QStringLiteral("gameFilter"));
    filter->setPlaceholderText(tr("Filter game files"));
    filter->setClearButtonEnabled(true);
    filter->setToolTip(tr("Show only the files whose path contains this text"));
    tree->setObjectName(QStringLiteral("gameTree"));
    tree->setHeaderLabels({tr("Name"), tr("Size"), tr("Source")});
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree->setAlternatingRowColors(true);
    tree->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    tree->header()->setStretchLastSection(false);
    tree->header()->resizeSection(SizeColumn, 90);
    tree->header()->resizeSection(SourceColumn, 260);
    moduleBox->setObjectName(QStringLiteral("moduleBox"));
    moduleBox->setToolTip(tr("The module whose archives and folder below modules/ are layered over the game's data"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(filter, 1);
    auto* moduleLabel = new QLabel(tr("Module:"), this);
    moduleLabel->setBuddy(moduleBox);
    buttons->addWidget(moduleLabel);
    buttons->addWidget(moduleBox);
    const std::vector<std::tuple<QString, QString, QString, void (GameWidget::*)()>> actions = {
        {QStringLiteral("buttonGameOpen"), tr("Open"), tr("Open the selected file in the page of its kind"),
         &GameWidget::openSelected},
        {QStringLiteral("buttonGameExtract"), tr("Extract…"), tr("Copy the selected files or folders out of the game"),
         &GameWidget::extract},
        {QStringLiteral("buttonGamePack"), tr("Pack folder into archive…"),
         tr("Write every file below a folder into a new .dat archive"), &GameWidget::pack}};
    for (const auto& [name, text, tip, slot] : actions) {
        auto* button = new QPushButton(text, this);
        button->setObjectName(name);
        button->setToolTip(tip);
        connect(button, &QPushButton::clicked, this, slot);
        buttons->addWidget(button);
    }
    auto* column = new QVBoxLayout(this);
    column->addLayout(buttons);
    column->addWidget(tree, 1);
    column->addWidget(summary);
    connect(filter, &QLineEdit::textChanged, this, &GameWidget::applyFilter);
    connect(tree, &QTreeWidget::itemActivated, this, [this] { openSelected(); });
    connect(moduleBox, &QComboBox::textActivated, this, [this](const QString& module) {
        gui::settings.setValue(QStringLiteral("Directories/Module"), module);
        build(module);
    });
}

void GameWidget::rescan(const QString& base)
{
    baseDir = base;
    // The engine's own module unless the user picked another one this game offers.
    QStringList modules = GameView::modules(base);
    const QString chosen = gui::settings.value(QStringLiteral("Directories/Module"), QStringLiteral("Arcanum")).toString();
    const QString module = modules.contains(chosen, Qt::CaseInsensitive) ? chosen : QStringLiteral("Arcanum");
    if (!modules.contains(module, Qt::CaseInsensitive))
        modules.prepend(module);
    const QSignalBlocker quiet(moduleBox);
    moduleBox->clear();
    moduleBox->addItems(modules);
    moduleBox->setCurrentIndex(moduleBox->findText(module, Qt::MatchFixedString));
    build(module);
}

void GameWidget::build(const QString& module)
{
    game.build(baseDir, module);
    fill();
    emit viewChanged();
}

QTreeWidgetItem* GameWidget::folderItem(const QString& folder)
{
    if (folder.isEmpty())
        return tree->invisibleRootItem();
    const QString key = folder.toLower();
    if (QTreeWidgetItem* found = folders.value(key))
        return found;
    const int slash = folder.lastIndexOf(QLatin1Char('/'));
    QTreeWidgetItem* parent = folderItem(slash < 0 ? QString() : folder.left(slash));
    auto* item = new QTreeWidgetItem(parent, {folder.mid(slash + 1)});
    folders.insert(key, item);
    return item;
}

void GameWidget::fill()
{
    tree->clear();
    folders.clear();
    const QVector<GameView::File>& files = game.files();
    int overridden = 0;
    for (int i = 0; i < files.size(); ++i) {
        const GameView::File& file = files[i];
        const int slash = file.path.lastIndexOf(QLatin1Char('/'));
        auto* item = new QTreeWidgetItem(folderItem(slash < 0 ? QString() : file.path.left(slash)));
        item->setText(NameColumn, file.path.mid(slash + 1));
        item->setText(SizeColumn, QString::number(file.size));
        item->setTextAlignment(SizeColumn, Qt::AlignRight | Qt::AlignVCenter);
        const QString source = game.source(file);
        if (!file.hidden.isEmpty())
            ++overridden;
        // As in the page lists: archived in italics, a loose file hiding an archived copy in bold.
        QFont font = item->font(NameColumn);
        font.setItalic(game.archived(file));
        font.setBold(!game.archived(file) && !file.hidden.isEmpty());
        item->setFont(NameColumn, font);
        item->setText(SourceColumn, source);
        item->setToolTip(NameColumn, file.path);
        item->setToolTip(SourceColumn, source);
        item->setData(NameColumn, FILE_ROLE, i);
    }
    tree->sortItems(NameColumn, Qt::AscendingOrder);
    QString text = tr("%1 files in %2 layers, %3 overriding an earlier layer")
                       .arg(files.size())
                       .arg(game.layers().size())
                       .arg(overridden);
    if (!game.problems().isEmpty())
        text += QLatin1String("; ") + game.problems().join(QStringLiteral("; "));
    summary->setText(text);
    applyFilter(filter->text());
}

void GameWidget::applyFilter(const QString& text)
{
    // A folder shows while anything below it does.
    std::function<bool(QTreeWidgetItem*)> show = [&](QTreeWidgetItem* item) {
        bool any = false;
        for (int i = 0; i < item->childCount(); ++i)
            any = show(item->child(i)) || any;
        const bool isFile = item->data(NameColumn, FILE_ROLE).isValid();
        const bool visible = isFile ? text.isEmpty() || item->toolTip(NameColumn).contains(text, Qt::CaseInsensitive)
                                    : any;
        if (item != tree->invisibleRootItem())
            item->setHidden(!visible);
        return visible;
    };
    show(tree->invisibleRootItem());
}

QList<const GameView::File*> GameWidget::selectedFiles() const
{
    QList<const GameView::File*> chosen;
    std::function<void(const QTreeWidgetItem*)> collect = [&](const QTreeWidgetItem* item) {
        const QVariant index = item->data(NameColumn, FILE_ROLE);
        if (index.isValid() && !chosen.contains(&game.files().at(index.toInt())))
            chosen.append(&game.files().at(index.toInt()));
        for (int i = 0; i < item->childCount(); ++i)
            collect(item->child(i));
    };
    for (const QTreeWidgetItem* item : tree->selectedItems())
        collect(item);
    return chosen;
}

void GameWidget::openSelected()
{
    const QList<const GameView::File*> files = selectedFiles();
    if (files.size() != 1)
        return;
    open(*files.first());
}

void GameWidget::open(const GameView::File& file)
{
    if (!game.archived(file)) {
        emit openRequested(file.path, QByteArray(), game.loosePath(file), false);
        return;
    }
    QByteArray bytes;
    QString error;
    if (!game.read(file, bytes, error)) {
        Prompt::message(this, QMessageBox::Warning, tr("Cannot open file"), error);
        return;
    }
    emit openRequested(file.path, bytes, game.overridePath(file), true);
}

bool GameWidget::runWithProgress(const QString& title, int total,
                                 const std::function<bool(const std::function<bool(int)>&)>& work)
{
    QProgressDialog progress(title, tr("Cancel"), 0, total, this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(300);
    std::atomic<int> done{0};
    std::atomic<bool> cancelled{false};
    QFutureWatcher<bool> watcher;
    QEventLoop loop;
    connect(&watcher, &QFutureWatcher<bool>::finished, &loop, &QEventLoop::quit);
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        progress.setValue(done.load());
        if (progress.wasCanceled())
            cancelled = true;
    });
    timer.start(50);
    watcher.setFuture(QtConcurrent::run([&] {
        return work([&](int count) {
            done = count;
            return !cancelled.load();
        });
    }));
    loop.exec();
    progress.setValue(total);
    return watcher.result() && !cancelled;
}

bool GameWidget::extractSelected(const QString& folder)
{
    const QList<const GameView::File*> files = selectedFiles();
    QStringList failures;
    const QDir root(folder);
    const bool finished = runWithProgress(tr("Extracting %1 files…").arg(files.size()), int(files.size()),
                                          [&](const std::function<bool(int)>& step) {
        for (int i = 0; i < files.size(); ++i) {
            QByteArray bytes;
            QString error;
            const QString target = root.filePath(files[i]->path);
            if (!game.read(*files[i], bytes, error) || !QDir().mkpath(QFileInfo(target).absolutePath())
                || arcanum::SafeSave::write(target, bytes, &error) != arcanum::SafeSave::Saved)
                failures.append(QStringLiteral("%1: %2").arg(files[i]->path, error));
            if (!step(i + 1))
                return false;
        }
        return true;
    });
    if (!failures.isEmpty())
        Prompt::message(this, QMessageBox::Warning, tr("Extract"), failures.join(QLatin1Char('\n')));
    return finished && failures.isEmpty();
}

void GameWidget::extract()
{
    if (selectedFiles().isEmpty())
        return;
    const QString folder = Prompt::existingDirectory(this, tr("Extract to"), baseDir);
    if (!folder.isEmpty() && extractSelected(folder))
        Prompt::message(this, QMessageBox::Information, tr("Extract"),
                        tr("%1 files written below %2").arg(selectedFiles().size()).arg(QDir::toNativeSeparators(folder)));
}

void GameWidget::pack()
{
    const QString folder = Prompt::existingDirectory(this, tr("Folder to pack"), baseDir);
    if (folder.isEmpty())
        return;
    const QString archive = Prompt::saveFileName(this, tr("Save archive as"), baseDir, tr("Arcanum archives (*.dat)"));
    if (archive.isEmpty())
        return;
    QString error;
    int total = 0;
    for (QDirIterator it(folder, QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDirIterator::Subdirectories);
         it.hasNext(); it.next())
        ++total;
    const bool packed = runWithProgress(tr("Packing %1 files…").arg(total), total,
                                        [&](const std::function<bool(int)>& step) {
        return arcanum::DatWriter::packFolder(folder, archive, error, [&](int done, int) { return step(done); });
    });
    if (!packed)
        Prompt::message(this, QMessageBox::Warning, tr("Pack"),
                        tr("%1 was not written: %2").arg(QDir::toNativeSeparators(archive), error.isEmpty() ? tr("cancelled") : error));
    else if (QDir::cleanPath(QFileInfo(archive).absolutePath()) == QDir::cleanPath(QDir(baseDir).absolutePath()))
        rescan(baseDir);
}
