#pragma once

#include <QWidget>

namespace arcanum {
class Artfile;
}
class ArtPreview;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

// The animation half of the Art tab: the preview with its playing controls, the header's frame rate
// and action frame, and what the preview shows. Edits are announced, never written into the file.
class ArtAnimationWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ArtAnimationWidget(QWidget* parent = nullptr);

    // A new file or a changed one: the controls and the preview follow it.
    void setArtfile(arcanum::Artfile* file);
    // The palette, image and frame selected in the lists; a playing preview keeps its own frame.
    void setSelection(unsigned palette, unsigned image, unsigned frame);
    ArtPreview* preview() const { return view; }

signals:
    void frameRateEdited(uint framesPerSecond);
    void actionFrameEdited(uint frame);
    void hotspotDragged(uint image, uint frame, qint32 left, qint32 top);

private:
    void buildControls();
    void fillControls();
    void showFrameNumber();
    void chooseBackground(int index);

    arcanum::Artfile* artfile = nullptr;
    ArtPreview* view = nullptr;
    QPushButton* buttonPlay = nullptr;
    QPushButton* buttonBack = nullptr;
    QPushButton* buttonForward = nullptr;
    QCheckBox* checkLoop = nullptr;
    QLabel* labelFrame = nullptr;
    QSpinBox* spinFrameRate = nullptr;
    QSpinBox* spinActionFrame = nullptr;
    QCheckBox* checkAllImages = nullptr;
    QCheckBox* checkHotspot = nullptr;
    QCheckBox* checkBox = nullptr;
    QComboBox* comboBackground = nullptr;
    QSpinBox* spinZoom = nullptr;
    QColor chosenColour;
    bool updating = false;
};
