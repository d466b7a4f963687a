#include "ArtWidget.h"

#include "ArtEditorWidget.h"
#include "ArtHeaderWidget.h"
#include "Prompt.h"
#include "ui_ArtWidget.h"

#include <QFile>
#include <QFileInfo>

ArtWidget::ArtWidget(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui_ArtWidget>())
{
    ui->setupUi(this);
    // The box reports the header's state; the file is not changed through it.
    ui->checkAnimated->setAttribute(Qt::WA_TransparentForMouseEvents);
    header = new ArtHeaderWidget(this);
    header->setMaximumHeight(240);
    editor = new ArtEditorWidget(this);
    ui->pageLayout->addWidget(header);
    ui->pageLayout->addWidget(editor, 1);

    connect(header, &ArtHeaderWidget::selectionChanged, this, &ArtWidget::selectionChanged);
    connect(header, &ArtHeaderWidget::paletteEdited, this, &ArtWidget::paletteEdited);
    connect(header, &ArtHeaderWidget::imagesAltered, this, &ArtWidget::imagesAltered);
    connect(header, &ArtHeaderWidget::framesAltered, this, &ArtWidget::framesAltered);
    connect(editor, &ArtEditorWidget::edited, this, &ArtWidget::frameEdited);
    updateControls();
}

ArtWidget::~ArtWidget() = default;

void ArtWidget::loadArt(const std::string& fullPath)
{
    path = fullPath;
    artfile.load(fullPath);
    // A file that could not be opened leaves the model as it was; the page must not go on
    // showing (and saving) the previous file under the new name.
    if (artfile.getPath() != fullPath)
        artfile.clear();
    header->setArtfile(&artfile);
    editor->setArtfile(&artfile);
    modified = false;
    updateControls();
}

QString ArtWidget::displayName() const
{
    return QFileInfo(QFile::decodeName(QByteArray::fromStdString(path))).fileName();
}

void ArtWidget::updateControls()
{
    const bool loaded = artfile.isLoaded();
    header->setEnabled(loaded);
    editor->setEnabled(loaded);
    ui->buttonSave->setEnabled(loaded);
    ui->checkAnimated->setEnabled(loaded);
    ui->checkAnimated->setChecked(loaded && artfile.isAnimated());
    if (loaded)
        ui->labelFile->setText(QStringLiteral("<b>%1</b>%2").arg(displayName().toHtmlEscaped(),
                                                                 modified ? QStringLiteral(" *") : QString()));
    else if (!path.empty())
        ui->labelFile->setText(tr("Could not load %1.").arg(displayName()));
}

void ArtWidget::on_buttonSave_clicked()
{
    const QString dir = QFileInfo(QFile::decodeName(QByteArray::fromStdString(path))).absolutePath();
    const QString name = Prompt::saveFileName(this, tr("Save"), dir, tr("Arcanum Art files (*.art);;All files (*.*)"));
    if (name.isEmpty())
        return;
    if (!artfile.save(name)) {
        Prompt::message(this, QMessageBox::Warning, tr("Save"), tr("Error saving file"));
        return;
    }
    path = QFile::encodeName(name).toStdString();
    artfile.setPath(path);
    modified = false;
    updateControls();
}

void ArtWidget::selectionChanged(uint palette, uint image, uint frame)
{
    editor->setFrame(palette, image, frame);
}

void ArtWidget::setModified()
{
    modified = true;
    updateControls();
}

void ArtWidget::paletteEdited(uint /*palette*/)
{
    setModified();
}

void ArtWidget::imagesAltered()
{
    setModified();
}

void ArtWidget::framesAltered()
{
    setModified();
}

void ArtWidget::frameEdited(uint /*image*/, uint /*frame*/)
{
    setModified();
}
