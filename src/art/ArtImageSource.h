#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QStringList>
#include <QVector>

// Folders of pictures read from disk to come into an art file, each picture named by its file (one file
// is read by arcanum::ArtImageFile). A refusal names the file and says why, before anything changes.
class ArtImageSource
{
    Q_DECLARE_TR_FUNCTIONS(ArtImageSource)

public:
    // The file-dialog filter of every image format Qt reads here.
    static QString fileFilter();
    // Every picture directly in folder, in natural name order ("walk2" before "walk10").
    static bool readFolder(const QString& folder, QVector<QImage>& images, QStringList& names, QString& error);
};
