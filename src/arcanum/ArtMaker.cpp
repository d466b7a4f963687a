#include "ArtMaker.h"

#include "PaletteMatcher.h"

#include <libimagequant.h>

#include <memory>

namespace arcanum {

namespace {
constexpr int OPAQUE_FROM = 128;
constexpr unsigned DIRECTIONS = 8;

struct LiqDeleter
{
    void operator()(liq_attr* p) const { liq_attr_destroy(p); }
    void operator()(liq_histogram* p) const { liq_histogram_destroy(p); }
    void operator()(liq_image* p) const { liq_image_destroy(p); }
    void operator()(liq_result* p) const { liq_result_destroy(p); }
};
template <typename T>
using LiqPointer = std::unique_ptr<T, LiqDeleter>;

// Alpha is all or nothing in an art file: the quantizer should spend no colour on half-transparent ones.
QImage snappedAlpha(const QImage& image, bool& anyTransparent)
{
    QImage rgba = image.convertToFormat(QImage::Format_RGBA8888);
    for (int y = 0; y < rgba.height(); ++y) {
        quint8* pixel = rgba.scanLine(y);
        for (int x = 0; x < rgba.width(); ++x, pixel += 4) {
            if (pixel[3] < OPAQUE_FROM) {
                std::fill_n(pixel, 4, quint8(0));
                anyTransparent = true;
            } else {
                pixel[3] = 255;
            }
        }
    }
    return rgba;
}

// Black where the images leave it free, else the first free colour of a short list, else any free one.
QRgb freeKey(const std::vector<QRgb>& used)
{
    const auto isUsed = [&used](QRgb c) { return std::find(used.begin(), used.end(), c) != used.end(); };
    for (QRgb candidate : {qRgb(0, 0, 0), qRgb(255, 0, 255), qRgb(0, 255, 255), qRgb(255, 255, 0)}) {
        if (!isUsed(candidate))
            return candidate;
    }
    for (int grey = 1;; ++grey) { // 255 colours cannot take all 256 greys
        if (!isUsed(qRgb(grey, grey, grey)))
            return qRgb(grey, grey, grey);
    }
}
} // namespace

bool ArtMaker::quantize(const std::vector<const QImage*>& images, Artfile::Palette& palette, QString& error)
{
    LiqPointer<liq_attr> attr(liq_attr_create());
    LiqPointer<liq_histogram> histogram(attr ? liq_histogram_create(attr.get()) : nullptr);
    if (!histogram) {
        error = QStringLiteral("libimagequant could not be started");
        return false;
    }
    bool anyTransparent = false;
    for (const QImage* image : images) {
        const QImage rgba = snappedAlpha(*image, anyTransparent);
        LiqPointer<liq_image> input(liq_image_create_rgba(attr.get(), rgba.constBits(), rgba.width(), rgba.height(), 0));
        if (!input || liq_histogram_add_image(histogram.get(), attr.get(), input.get()) != LIQ_OK) {
            error = QStringLiteral("libimagequant could not read an image of %1 × %2").arg(rgba.width()).arg(rgba.height());
            return false;
        }
    }
    // With transparent pixels the quantizer spends one entry on them; the key takes its place.
    liq_set_max_colors(attr.get(), anyTransparent ? 256 : 255);
    liq_result* made = nullptr;
    if (liq_histogram_quantize(histogram.get(), attr.get(), &made) != LIQ_OK || !made) {
        error = QStringLiteral("libimagequant made no palette of these images");
        return false;
    }
    LiqPointer<liq_result> result(made);
    const liq_palette* colours = liq_get_palette(result.get());
    std::vector<QRgb> opaque;
    for (unsigned i = 0; i < colours->count && opaque.size() < Artfile::PALETTE_SIZE - 1; ++i) {
        const liq_color& c = colours->entries[i];
        if (c.a >= OPAQUE_FROM)
            opaque.push_back(qRgb(c.r, c.g, c.b));
    }
    const Artfile::Colour key = Artfile::Colour::fromArgb(freeKey(opaque) & 0xFFFFFFu);
    std::fill(std::begin(palette), std::end(palette), key);
    for (std::size_t i = 0; i < opaque.size(); ++i)
        palette[i + 1] = Artfile::Colour::fromArgb(opaque[i] & 0xFFFFFFu);
    return true;
}

bool ArtMaker::make(const std::vector<std::vector<QImage>>& images, const Settings& settings, Artfile& art,
                    QString& error)
{
    const std::size_t frames = images.empty() ? 0 : images.front().size();
    const bool equal = std::all_of(images.begin(), images.end(),
                                   [frames](const std::vector<QImage>& row) { return row.size() == frames; });
    if (frames == 0 || !equal || (frames > 1 && images.size() != DIRECTIONS)) {
        error = QStringLiteral("an art file holds eight directions of as many frames each, or images of one frame; "
                               "these are %1 images of %2 frames")
                    .arg(images.size()).arg(frames);
        return false;
    }
    Artfile::Palette palette{};
    if (settings.ownPalette) {
        Artfile::copyPalette(settings.palette, palette);
    } else {
        std::vector<const QImage*> all;
        for (const std::vector<QImage>& row : images)
            for (const QImage& image : row)
                all.push_back(&image);
        if (!quantize(all, palette, error))
            return false;
    }
    Artfile made;
    for (std::size_t i = 0; i < images.size(); ++i)
        made.newImage(0);
    for (std::size_t f = 0; f < frames; ++f)
        made.newFrame(0);
    made.setPalette(0, palette);
    const PaletteMatcher matcher(palette);
    for (unsigned i = 0; i < images.size(); ++i) {
        for (unsigned f = 0; f < frames; ++f) {
            const PaletteMatcher::Result matched = matcher.match(images[i][f], settings.dither);
            if (!made.setFramePixels(i, f, quint32(matched.width), quint32(matched.height), matched.indices)) {
                error = QStringLiteral("image %1 frame %2: an empty image cannot be a frame").arg(i).arg(f);
                return false;
            }
            Artfile::Image* frame = made.getImage(i, f);
            const QPoint bottomCentre(matched.width / 2, matched.height - 1);
            const QPoint hotspot = settings.ownHotspot ? settings.hotspot : bottomCentre;
            frame->left = hotspot.x();
            frame->top = hotspot.y();
        }
    }
    made.setFrameRate(settings.frameRate);
    made.setActionFrame(settings.actionFrame);
    art = made;
    return true;
}

} // namespace arcanum
