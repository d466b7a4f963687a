#include "ArtImageSource.h"

#include "ArtImageFile.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>

#include <algorithm>

namespace {
QStringList imagePatterns()
{
    QStringList patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
        patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
    return patterns;
}

// Names compared with their runs of digits as numbers, so "walk2" comes before "walk10" in any locale.
bool naturalLess(const QString& a, const QString& b)
{
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < a.size() && j < b.size()) {
        if (a.at(i).isDigit() && b.at(j).isDigit()) {
            qsizetype endA = i;
            qsizetype endB = j;
            while (endA < a.size() && a.at(endA).isDigit())
                ++endA;
            while (endB < b.size() && b.at(endB).isDigit())
                ++endB;
            const QString numberA = a.mid(i, endA - i).remove(QRegularExpression(QStringLiteral("^0+")));
            const QString numberB = b.mid(j, endB - j).remove(QRegularExpression(QStringLiteral("^0+")));
            if (numberA.size() != numberB.size())
                return numberA.size() < numberB.size();
            if (numberA != numberB)
                return numberA < numberB;
            i = endA;
            j = endB;
            continue;
        }
        const int order = QString::compare(a.mid(i, 1), b.mid(j, 1), Qt::CaseInsensitive);
        if (order != 0)
            return order < 0;
        ++i;
        ++j;
    }
    if (a.size() - i != b.size() - j)
        return a.size() - i < b.size() - j;
    return a < b;
}
} // namespace

QString ArtImageSource::fileFilter()
{
    return tr("Images (%1);;All files (*)").arg(imagePatterns().join(QLatin1Char(' ')));
}

bool ArtImageSource::readFolder(const QString& folder, QVector<QImage>& images, QStringList& names, QString& error)
{
    QDir dir(folder);
    QStringList files = dir.entryList(imagePatterns(), QDir::Files | QDir::Readable, QDir::NoSort);
    if (files.isEmpty()) {
        error = tr("%1 holds no pictures").arg(QDir::toNativeSeparators(folder));
        return false;
    }
    std::sort(files.begin(), files.end(), naturalLess);
    QVector<QImage> read;
    for (const QString& file : files) {
        QImage image;
        if (!arcanum::ArtImageFile::read(dir.filePath(file), image, error))
            return false;
        read.append(image);
    }
    images = read;
    names = files;
    return true;
}
