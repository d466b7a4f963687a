// Art of the sample game: a walking beetle in eight directions with a second (fire) palette,
// a potion icon stored raw, and a frost palette file to load into the beetle.
// Everything is drawn with plain arithmetic, so the files come out the same on every run.
#include "SampleRegistry.h"

#include "ArtRunLength.h"
#include "Artfile.h"

#include <QColor>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using arcanum::Artfile;

// Palette layout shared by the sample files.
enum Index : quint8 {
    GROUND = 0,
    OUTLINE = 1,
    LEG = 2,
    EYE = 3,
    SHADOW = 4,
    CORK = 5,
    GLASS = 6,
    HIGHLIGHT = 7,
    BODY_RAMP = 16, // 16 shades, dark to light
    HEAD_RAMP = 32, // 16 shades, dark to light
    RAMP_SHADES = 16,
};

struct Rgb
{
    int red;
    int green;
    int blue;
};

Artfile::Colour colour(const Rgb& c)
{
    return {quint8(c.blue), quint8(c.green), quint8(c.red), 0};
}

void ramp(Artfile::Palette& palette, int first, const Rgb& dark, const Rgb& light)
{
    for (int i = 0; i < RAMP_SHADES; ++i) {
        const auto mix = [i](int a, int b) { return a + (b - a) * i / (RAMP_SHADES - 1); };
        palette[first + i] = colour({mix(dark.red, light.red), mix(dark.green, light.green), mix(dark.blue, light.blue)});
    }
}

// Entries no sample pixel uses get a hue sweep, so the palette editor has something to show.
void fillSpare(Artfile::Palette& palette, int hueShift)
{
    for (int i = 48; i < int(Artfile::PALETTE_SIZE); ++i) {
        const QColor c = QColor::fromHsv((i * 7 + hueShift) % 360, 140 + (i % 4) * 35, 90 + (i % 8) * 20);
        palette[i] = colour({c.red(), c.green(), c.blue()});
    }
}

struct Scheme
{
    Rgb ground, shadow, leg, eye, bodyDark, bodyLight, headDark, headLight;
    int hueShift;
};

void makePalette(const Scheme& s, Artfile::Palette& palette)
{
    fillSpare(palette, s.hueShift);
    palette[GROUND] = colour(s.ground);
    palette[OUTLINE] = colour({16, 14, 12});
    palette[LEG] = colour(s.leg);
    palette[EYE] = colour(s.eye);
    palette[SHADOW] = colour(s.shadow);
    palette[CORK] = colour({150, 100, 55});
    palette[GLASS] = colour({190, 215, 225});
    palette[HIGHLIGHT] = colour({255, 255, 255});
    ramp(palette, BODY_RAMP, s.bodyDark, s.bodyLight);
    ramp(palette, HEAD_RAMP, s.headDark, s.headLight);
}

const Scheme GREEN_BEETLE = {{214, 200, 160}, {170, 155, 118}, {40, 36, 30}, {250, 230, 90},
                             {12, 45, 22}, {150, 235, 120}, {20, 30, 25}, {90, 120, 95}, 0};
const Scheme FIRE_BEETLE = {{92, 88, 100}, {64, 60, 70}, {60, 20, 10}, {255, 255, 200},
                            {70, 10, 5}, {255, 200, 80}, {45, 15, 10}, {170, 70, 40}, 120};
const Scheme FROST_BEETLE = {{225, 235, 245}, {180, 192, 210}, {30, 40, 70}, {255, 80, 80},
                             {15, 30, 80}, {170, 225, 255}, {20, 25, 50}, {100, 120, 170}, 240};

// ---------------------------------------------------------------------------------------------
// The beetle

constexpr int SPRITE = 48;
constexpr double CENTRE_X = 24;
constexpr double CENTRE_Y = 25;
constexpr int DIRECTIONS = 8;
constexpr int STEPS = 4;

// Forward vector of each direction, clockwise from north.
const double FORWARD[DIRECTIONS][2] = {{0, -1}, {M_SQRT1_2, -M_SQRT1_2}, {1, 0}, {M_SQRT1_2, M_SQRT1_2},
                                       {0, 1},  {-M_SQRT1_2, M_SQRT1_2}, {-1, 0}, {-M_SQRT1_2, -M_SQRT1_2}};

struct Local
{
    double along; // towards the head
    double side;  // towards the beetle's right
};

double segmentDistance(Local p, Local a, Local b)
{
    const double da = b.along - a.along;
    const double ds = b.side - a.side;
    const double t = std::clamp(((p.along - a.along) * da + (p.side - a.side) * ds) / (da * da + ds * ds), 0.0, 1.0);
    return std::hypot(p.along - (a.along + t * da), p.side - (a.side + t * ds));
}

// Tripod gait: legs 0 and 2 of one side swing with leg 1 of the other.
bool onLeg(Local p, int step)
{
    static const int SWING[STEPS] = {3, 0, -3, 0};
    for (int leg = 0; leg < 3; ++leg) {
        for (int side : {-1, 1}) {
            const int swing = SWING[step] * ((leg % 2 == 0) == (side > 0) ? 1 : -1);
            const Local base{double(5 - 5 * leg), 7.0 * side};
            const Local tip{double(7 - 6 * leg + swing), 14.0 * side};
            if (segmentDistance(p, base, tip) < 0.9)
                return true;
        }
    }
    return false;
}

quint8 shade(int ramp, double height, double lightSlope)
{
    const double level = std::clamp(height * 0.7 + lightSlope * 0.45 + 0.1, 0.0, 0.999);
    return quint8(ramp + int(level * RAMP_SHADES));
}

quint8 beetlePixel(double x, double y, int direction, int step)
{
    const double fx = FORWARD[direction][0];
    const double fy = FORWARD[direction][1];
    const double rx = x - CENTRE_X;
    const double ry = y - CENTRE_Y;
    const Local p{rx * fx + ry * fy, rx * -fy + ry * fx};
    // Light from the upper left of the screen.
    const double slope = (-rx - ry) / 14.0;

    const double eyeSide = std::abs(p.side) - 2.6;
    if (std::hypot(p.along - 15.5, eyeSide) < 1.3)
        return EYE;
    const double head = 1 - (std::pow(p.along - 13, 2) + p.side * p.side) / 30.0;
    if (head > 0)
        return shade(HEAD_RAMP, std::sqrt(head), slope);
    const double body = 1 - std::pow(p.along / 12.0, 2) - std::pow(p.side / 9.0, 2);
    if (body > 0) {
        const bool seam = std::abs(p.side) < 0.6 && p.along < 9;
        return seam ? quint8(BODY_RAMP + 1) : shade(BODY_RAMP, std::sqrt(body), slope);
    }
    if (onLeg(p, step) || (p.along > 17 && p.along < 20.5 && std::abs(std::abs(p.side) - 2.2) < 0.8))
        return LEG;
    const double sx = (rx - 3) / 15.0;
    const double sy = (ry - 4) / 12.0;
    return sx * sx + sy * sy < 1 ? SHADOW : GROUND;
}

bool isFigure(quint8 index)
{
    return index != GROUND && index != SHADOW;
}

// A dark line around the figure keeps it readable on any ground colour.
void outline(std::vector<quint8>& pixels, int size)
{
    const std::vector<quint8> source = pixels;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            if (isFigure(source[y * size + x]))
                continue;
            const bool touches = (x > 0 && isFigure(source[y * size + x - 1]))
                || (x + 1 < size && isFigure(source[y * size + x + 1])) || (y > 0 && isFigure(source[(y - 1) * size + x]))
                || (y + 1 < size && isFigure(source[(y + 1) * size + x]));
            if (touches)
                pixels[y * size + x] = OUTLINE;
        }
    }
}

std::vector<quint8> drawBeetle(int direction, int step)
{
    std::vector<quint8> pixels(SPRITE * SPRITE);
    for (int y = 0; y < SPRITE; ++y) {
        for (int x = 0; x < SPRITE; ++x)
            pixels[y * SPRITE + x] = beetlePixel(x + 0.5, y + 0.5, direction, step);
    }
    outline(pixels, SPRITE);
    return pixels;
}

bool writeBeetle(const QDir& game)
{
    Artfile art;
    for (int d = 0; d < DIRECTIONS; ++d)
        art.newImage(0);
    for (int s = 0; s < STEPS; ++s)
        art.newFrame(0);
    Artfile::Palette palette;
    makePalette(GREEN_BEETLE, palette);
    art.setPalette(0, palette);
    art.newPalette(0);
    makePalette(FIRE_BEETLE, palette);
    art.setPalette(1, palette);
    art.setAnimated(true);
    art.setFrameRate(8);
    for (int d = 0; d < DIRECTIONS; ++d) {
        for (int s = 0; s < STEPS; ++s) {
            const std::vector<quint8> pixels = drawBeetle(d, s);
            Artfile::Image* frame = art.getImage(unsigned(d), unsigned(s));
            frame->setData(SPRITE, SPRITE, arcanum::ArtRunLength::encode(pixels.data(), pixels.size()));
            frame->left = SPRITE / 2;
            frame->top = 40;
        }
    }
    return art.save(game.filePath(QStringLiteral("data/art/sample_beetle.art")));
}

// ---------------------------------------------------------------------------------------------
// The potion

constexpr int ICON = 32;

quint8 potionPixel(int x, int y)
{
    if (x >= 13 && x <= 18 && y >= 3 && y <= 7)
        return CORK;
    if (x >= 14 && x <= 17 && y >= 8 && y <= 11)
        return GLASS;
    const double dx = x + 0.5 - 16;
    const double dy = y + 0.5 - 20;
    const double r = std::hypot(dx, dy);
    if (r >= 9.5)
        return GROUND;
    if (std::hypot(dx + 3.5, dy + 3.5) < 1.6)
        return HIGHLIGHT;
    if (dy < -2)
        return GLASS;
    const double light = std::clamp(1 - r / 9.5 + (-dx - dy) / 30.0, 0.0, 0.999);
    return quint8(BODY_RAMP + int(light * RAMP_SHADES));
}

bool writePotion(const QDir& game)
{
    Artfile art;
    art.newImage(0);
    art.newFrame(0);
    Artfile::Palette palette;
    makePalette(FIRE_BEETLE, palette);
    art.setPalette(0, palette);

    std::vector<quint8> pixels(ICON * ICON);
    for (int y = 0; y < ICON; ++y) {
        for (int x = 0; x < ICON; ++x)
            pixels[y * ICON + x] = potionPixel(x, y);
    }
    outline(pixels, ICON);
    // Stored raw, so the sample game has a frame of each encoding.
    art.getImage(0, 0)->setData(ICON, ICON, QByteArray(reinterpret_cast<const char*>(pixels.data()), ICON * ICON));
    Artfile::Image* frame = art.getImage(0, 0);
    frame->left = ICON / 2;
    frame->top = 28;
    return art.save(game.filePath(QStringLiteral("data/art/sample_potion.art")));
}

bool writeFrostPalette(const QDir& game)
{
    Artfile::Palette palette;
    makePalette(FROST_BEETLE, palette);
    return SampleRegistry::writeBytes(game, QStringLiteral("data/art/sample_frost.aap"), Artfile::paletteToBytes(palette));
}

bool writeArt(const QDir& game)
{
    const bool beetle = writeBeetle(game);
    const bool potion = writePotion(game);
    return writeFrostPalette(game) && beetle && potion;
}

const SampleRegistration registration("art", &writeArt);

} // namespace
