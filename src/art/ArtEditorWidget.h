#pragma once

#include <QImage>
#include <QWidget>

#include <memory>

namespace arcanum {
class Artfile;
}
class Ui_ArtEditorWidget;
class QPushButton;
class QSpinBox;

// Shows one frame of the art file in one palette, edits its placement values and exchanges
// the frame with the clipboard and image files. Zooming only changes what is shown.
class ArtEditorWidget : public QWidget
{
    Q_OBJECT

public:
    // The picture as the game shows it: entry 0 (and its colour) over a checkerboard.
    static QImage withTransparency(const QImage& indexed);
    static constexpr int MAX_ZOOM = 8;
    // Ways a picture comes into the file; the page asks for it and matches its colours.
    enum ImportKind { ReplaceFrame, NewFrame, WholeImage, Paste };
    Q_ENUM(ImportKind)

    explicit ArtEditorWidget(QWidget* parent = nullptr);
    ~ArtEditorWidget() override;

    void setArtfile(arcanum::Artfile* file);
    void setFrame(unsigned palette, unsigned image, unsigned frame);
    void updateEditor();
    void clear();

    int zoom() const;
    void setZoom(int factor);
    // The frame as last converted, unscaled; null when no picture is shown.
    const QImage& frameImage() const { return picture; }

signals:
    void edited(uint image, uint frame);
    void importRequested(ArtEditorWidget::ImportKind kind);

public slots:
    void updateValues();

private slots:
    void on_buttonExport_clicked();
    void on_buttonToClipboard_clicked();
    void on_buttonFromClipboard_clicked();
    void on_spinZoom_valueChanged(int factor);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showPicture();
    void showText(const QString& text);
    void fillValues();
    void setControlsEnabled(bool enabled);
    void addImportButton();
    static bool takeSpin(const QSpinBox* spin, qint32& value);

    std::unique_ptr<Ui_ArtEditorWidget> ui;
    arcanum::Artfile* artfile = nullptr;
    unsigned paletteIndex = 0;
    unsigned imageIndex = 0;
    unsigned frameIndex = 0;
    bool updating = false;
    QImage picture;
    QPushButton* buttonImport = nullptr;
};
