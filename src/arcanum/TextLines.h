#pragma once

#include <QString>

namespace arcanum {

// The lines of a decoded text, read as QTextStream::readLine reads a string (a line ends at "\n"; a "\r"
// right before it, or at the very end of the text, is dropped), but each found with one fast search
// instead of QTextStream's look at every character. Large files are read this way.
class TextLines
{
public:
    explicit TextLines(const QString& text)
        : text(text)
    {
    }

    bool atEnd() const { return offset >= text.size(); }

    QString readLine()
    {
        const qsizetype newline = text.indexOf(QLatin1Char('\n'), offset);
        const qsizetype start = offset;
        const qsizetype end = newline < 0 ? text.size() : newline;
        offset = newline < 0 ? text.size() : newline + 1;
        const bool carriageReturn = end > start && text.at(end - 1) == QLatin1Char('\r');
        return text.mid(start, end - start - (carriageReturn ? 1 : 0));
    }

private:
    const QString& text;
    qsizetype offset = 0;
};

} // namespace arcanum
