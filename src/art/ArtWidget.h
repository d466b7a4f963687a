#pragma once

#include "Artfile.h"

#include <QWidget>

#include <memory>
#include <string>

class Ui_ArtWidget;
class ArtHeaderWidget;
class ArtEditorWidget;

// The Art tab: owns the art file on show, lists its parts above and shows the selected frame below.
class ArtWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ArtWidget(QWidget* parent = nullptr);
    ~ArtWidget() override;

    void loadArt(const std::string& path);
    // The file the page was last asked to show (or saved as).
    std::string getPath() const { return path; }
    bool isModified() const { return modified; }
    arcanum::Artfile& getArtfile() { return artfile; }
    ArtHeaderWidget* headerWidget() const { return header; }
    ArtEditorWidget* editorWidget() const { return editor; }

private slots:
    void on_buttonSave_clicked();
    void selectionChanged(uint palette, uint image, uint frame);
    void paletteEdited(uint palette);
    void imagesAltered();
    void framesAltered();
    void frameEdited(uint image, uint frame);

private:
    void setModified();
    void updateControls();
    QString displayName() const;

    std::unique_ptr<Ui_ArtWidget> ui;
    arcanum::Artfile artfile;
    ArtHeaderWidget* header = nullptr;
    ArtEditorWidget* editor = nullptr;
    std::string path;
    bool modified = false;
};
