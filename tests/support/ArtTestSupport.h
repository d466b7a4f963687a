#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <iostream>
#include <sstream>

// Helpers the art tests share.
namespace ArtTestSupport {

// The palette indices of an 8-bit image, row after row, without the row padding.
inline QByteArray indices(const QImage& image)
{
    QByteArray out;
    for (int y = 0; y < image.height(); ++y)
        out.append(reinterpret_cast<const char*>(image.constScanLine(y)), image.width());
    return out;
}

// Collects what is written on standard output while it lives (the models report there).
class CoutCapture
{
public:
    CoutCapture()
        : previous(std::cout.rdbuf(buffer.rdbuf()))
    {
    }
    ~CoutCapture() { std::cout.rdbuf(previous); }
    CoutCapture(const CoutCapture&) = delete;
    CoutCapture& operator=(const CoutCapture&) = delete;
    QString text() const { return QString::fromStdString(buffer.str()); }

private:
    std::ostringstream buffer;
    std::streambuf* previous;
};

} // namespace ArtTestSupport
