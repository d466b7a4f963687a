#include "obytestream.h"

#include <QFile>
#include <QTemporaryFile>

#include <cstdio>
#include <fstream>
#include <sstream>

namespace arcanum {

namespace {

QString fromBytes(const std::string& path)
{
    return QFile::decodeName(QByteArray::fromStdString(path));
}

// A new file takes the usual rw-r--r--; a replaced one keeps what its owner gave it.
void takePermissions(const QString& from, const QString& to)
{
    if (QFile::exists(from))
        QFile::setPermissions(to, QFile::permissions(from));
    else
        QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser
                                      | QFile::ReadGroup | QFile::ReadOther);
}

} // namespace

obytestream::obytestream()
    : std::ostream(nullptr)
    , buffer(std::make_unique<std::stringbuf>(std::ios::out))
{
    rdbuf(buffer.get());
}

obytestream::obytestream(const std::string& path)
    : std::ostream(nullptr)
    , buffer(std::make_unique<std::filebuf>())
    , target(path)
{
    rdbuf(buffer.get());
    // QTemporaryFile only reserves a unique name beside the target; the stream writes into it.
    QTemporaryFile reserve(fromBytes(path) + QStringLiteral(".XXXXXX"));
    reserve.setAutoRemove(false);
    if (path.empty() || !reserve.open()) {
        setstate(std::ios::failbit);
        return;
    }
    temporary = QFile::encodeName(reserve.fileName()).toStdString();
    reserve.close();
    if (!file()->open(temporary, std::ios::out | std::ios::binary | std::ios::trunc))
        setstate(std::ios::failbit);
}

obytestream::~obytestream()
{
    if (!committed)
        discard();
}

obytestream& obytestream::writeRaw(const std::uint8_t* data, std::size_t count)
{
    if (count > 0)
        write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(count));
    return *this;
}

std::filebuf* obytestream::file() const
{
    return dynamic_cast<std::filebuf*>(buffer.get());
}

std::string obytestream::bytes() const
{
    const auto* memory = dynamic_cast<const std::stringbuf*>(buffer.get());
    return memory ? memory->str() : std::string();
}

bool obytestream::commit()
{
    if (!file())
        return ok();
    if (temporary.empty() || committed)
        return false;
    flush();
    const bool written = ok();
    if (!file()->close())
        setstate(std::ios::failbit);
    if (!written || !ok()) {
        discard();
        return false;
    }
    takePermissions(fromBytes(target), fromBytes(temporary));
    if (std::rename(temporary.c_str(), target.c_str()) != 0) {
        discard();
        return false;
    }
    committed = true;
    return true;
}

void obytestream::discard()
{
    if (file() && file()->is_open())
        file()->close();
    if (!temporary.empty())
        std::remove(temporary.c_str());
    temporary.clear();
}

} // namespace arcanum
