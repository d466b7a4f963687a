#include "EncodingBox.h"

#include <QSignalBlocker>
#include <QTextCodec>

#include <algorithm>

EncodingBox::EncodingBox(QWidget* parent)
    : QComboBox(parent)
{
    addItems(encodingList());
    setMinimumContentsLength(18);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setToolTip(tr("<b>File encoding</b><br/>The file is read and saved in this encoding, remembered for each file. "
                  "Choosing another one reads the file again from disk, after asking about unsaved changes."));
    connect(this, &QComboBox::currentTextChanged, this, [this](const QString& name) {
        if (QTextCodec* codec = QTextCodec::codecForName(name.toLatin1()))
            emit codecChosen(codec);
    });
}

const QStringList& EncodingBox::encodingList()
{
    // Qt lists each codec under all of its aliases.
    static const QStringList names = [] {
        QStringList first;
        for (const char* common : {"windows-1251", "windows-1252", "windows-1250", "UTF-8", "EUC-KR", "GBK", "Shift_JIS"})
            if (const QTextCodec* codec = QTextCodec::codecForName(common))
                first << QString::fromLatin1(codec->name());
        QStringList rest;
        for (const QByteArray& alias : QTextCodec::availableCodecs()) {
            const QString name = QString::fromLatin1(QTextCodec::codecForName(alias)->name());
            if (!first.contains(name, Qt::CaseInsensitive) && !rest.contains(name, Qt::CaseInsensitive))
                rest << name;
        }
        std::sort(rest.begin(), rest.end(), [](const QString& a, const QString& b) {
            return QString::compare(a, b, Qt::CaseInsensitive) < 0;
        });
        first.removeDuplicates();
        return first + rest;
    }();
    return names;
}

void EncodingBox::showCodec(QTextCodec* codec)
{
    if (codec == nullptr)
        return;
    const QSignalBlocker blocker(this);
    setCurrentIndex(findText(QString::fromLatin1(codec->name()), Qt::MatchFixedString));
}
