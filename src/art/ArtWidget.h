#pragma once

#include "ArtEditorWidget.h"
#include "Artfile.h"
#include "Page.h"

#include <memory>

class ArtDocument;
class Ui_ArtWidget;
class ArtHeaderWidget;
class ArtEditorWidget;
class ArtAnimationWidget;

// The Art tab: owns the art file on show, lists its parts above and shows the selected frame below.
class ArtWidget : public Page
{
    Q_OBJECT

public:
    explicit ArtWidget(QWidget* parent = nullptr);
    ~ArtWidget() override;

    QStringList suffixes() const override;
    QString fileFilter() const override;
    std::unique_ptr<Document> fromBytes(const QString& path, const QByteArray& bytes, QString& error) const override;

    ArtDocument* artDocument() const;
    ArtHeaderWidget* headerWidget() const { return header; }
    ArtEditorWidget* editorWidget() const { return editor; }
    ArtAnimationWidget* animationWidget() const { return animation; }

    // Asks for a folder of pictures and shows a new, unsaved art file made of them with a palette of
    // their own: pictures directly in the folder are images of one frame each; subfolders are directions,
    // their pictures the frames. False when cancelled or refused (after saying why).
    bool newFromImages();
    // The lossless folder form: every frame as an indexed PNG (or one sprite sheet) plus JSON.
    bool exportFolder(bool sheet);
    // Reads a folder written by exportFolder into the shown file as one step (into a new file when none
    // is open).
    bool importFolder();

protected:
    void showDocument() override;
    QList<QWidget*> fileControls() const override;

private slots:
    void on_buttonSave_clicked();
    void on_buttonSaveAs_clicked();
    void selectionChanged(uint palette, uint image, uint frame);

private:
    // Reads the pictures kind asks for, shows them matched to the selected palette and puts them in.
    void importPicture(ArtEditorWidget::ImportKind kind);
    // False, after saying why, when the pictures would need frames the file cannot store.
    bool canHold(ArtEditorWidget::ImportKind kind, unsigned pictures);
    bool readPictures(ArtEditorWidget::ImportKind kind, QVector<QImage>& sources, QStringList& names);
    QString pictureFolder() const;
    void addFolderButtons();
    // Shows art as a new file that has no name yet.
    void showUnsaved(const arcanum::Artfile& art);
    // Records what the lists or the frame editor changed as one step named text.
    void recordEdit(const QString& text, int mergeId = -1, int key = 0);
    // keepPlace: the same file changed, the selection stays; otherwise a file was opened or closed.
    void refresh(bool keepPlace = false);
    void updateControls();

    std::unique_ptr<Ui_ArtWidget> ui;
    // Shown while no document is open.
    arcanum::Artfile empty;
    ArtHeaderWidget* header = nullptr;
    ArtEditorWidget* editor = nullptr;
    ArtAnimationWidget* animation = nullptr;
    QList<QWidget*> folderButtons;
    // Where the last picture was imported from.
    QString lastImportFolder;
};
