#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QStringList>
#include <QVector>

// Pictures read from disk to come into an art file, each named by its file. A refusal names the file
// and says why, before anything of the art file changes.
class ArtImageSource
{
    Q_DECLARE_TR_FUNCTIONS(ArtImageSource)

public:
    // The art model draws no frame of more pixels than this.
    static constexpr qint64 MAX_PIXELS = qint64(1) << 26;

    // The file-dialog filter of every image format Qt reads here.
    static QString fileFilter();
    static bool readFile(const QString& path, QImage& image, QString& error);
    // Every picture directly in folder, in natural name order ("walk2" before "walk10").
    static bool readFolder(const QString& folder, QVector<QImage>& images, QStringList& names, QString& error);
};
