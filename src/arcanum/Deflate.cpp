#include "Deflate.h"

#include <libdeflate.h>

#include <memory>

namespace arcanum {

namespace {
const int BEST_LEVEL = 9;

struct FreeDecompressor
{
    void operator()(libdeflate_decompressor* d) const { libdeflate_free_decompressor(d); }
};
struct FreeCompressor
{
    void operator()(libdeflate_compressor* c) const { libdeflate_free_compressor(c); }
};
} // namespace

bool Deflate::inflate(const QByteArray& packed, qsizetype size, QByteArray& out)
{
    thread_local std::unique_ptr<libdeflate_decompressor, FreeDecompressor> decompressor(
        libdeflate_alloc_decompressor());
    if (!decompressor || size < 0)
        return false;
    out.resize(size);
    std::size_t written = 0;
    const libdeflate_result result = libdeflate_zlib_decompress(
        decompressor.get(), packed.constData(), std::size_t(packed.size()), out.data(), std::size_t(size), &written);
    return result == LIBDEFLATE_SUCCESS && written == std::size_t(size);
}

QByteArray Deflate::deflate(const QByteArray& bytes)
{
    thread_local std::unique_ptr<libdeflate_compressor, FreeCompressor> compressor(
        libdeflate_alloc_compressor(BEST_LEVEL));
    if (!compressor)
        return QByteArray();
    QByteArray out(qsizetype(libdeflate_zlib_compress_bound(compressor.get(), std::size_t(bytes.size()))), Qt::Uninitialized);
    const std::size_t size = libdeflate_zlib_compress(compressor.get(), bytes.constData(), std::size_t(bytes.size()),
                                                      out.data(), std::size_t(out.size()));
    out.resize(qsizetype(size));
    return out;
}

} // namespace arcanum
