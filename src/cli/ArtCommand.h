#pragma once

#include <QString>
#include <QStringList>

class QTextStream;

namespace arcanum {
class Artfile;
}

// `loreka art export|import|from-images|info`: art files to and from the lossless folder form
// (indexed PNGs and a JSON description), new art files from images, and what an art file holds.
class ArtCommand
{
public:
    struct Options
    {
        bool sheet = false;
        bool dither = false;
        QString palette; // export: the palette the PNGs are coloured with; from-images: a palette file
        QString from;    // from-images: the art file whose palette to use
        QString fps;
        QString action;
        QString hotspot;
    };

    explicit ArtCommand(const Options& chosen);
    // operands: the subcommand and its own operands.
    int run(const QStringList& operands);

private:
    int exportFolder(const QString& artPath, const QString& dir);
    int importFolder(const QString& dir, const QString& artPath);
    int fromImages(const QStringList& inputs, const QString& artPath);
    int info(const QString& artPath);
    bool readFrames(const QStringList& inputs, std::vector<std::vector<class QImage>>& images);
    int fail(const QString& message);
    int usage(const QString& message);

    Options options;
};
