#pragma once

#include "Artfile.h"

#include <QImage>
#include <QPoint>
#include <QString>

#include <vector>

namespace arcanum {

// Makes a new art file from true-colour images: a palette from the images themselves (libimagequant) or
// a given one, every frame matched to it (PaletteMatcher) and stored run-length encoded where smaller.
class ArtMaker
{
public:
    struct Settings
    {
        bool ownPalette = false; // use palette below instead of one made from the images
        Artfile::Palette palette{};
        bool dither = false;
        quint32 frameRate = 10;
        quint32 actionFrame = 0;
        bool ownHotspot = false; // hotspot below on every frame instead of each frame's bottom centre
        QPoint hotspot;
    };

    // images holds one list of frames per image: eight directions of as many frames each, or any number
    // of images of one frame. False (art untouched) and the reason otherwise.
    static bool make(const std::vector<std::vector<QImage>>& images, const Settings& settings, Artfile& art,
                     QString& error);
    // A palette for the images: at most 255 colours made by libimagequant from their opaque pixels (alpha
    // from one half), and on index 0 a transparent key of a colour none of them has. The entries past the
    // last colour repeat the key, so no pixel is ever matched to them.
    static bool quantize(const std::vector<const QImage*>& images, Artfile::Palette& palette, QString& error);
};

} // namespace arcanum
