#pragma once

#include <cstddef>
#include <memory>

#include <iconv.h>

// iconv's converters for the code pages. To open one takes several times as long as to convert a
// label, so that a few stay open for the next texts.

namespace Pelmora::Native::Platform
{

enum class Direction {
    decoding, ///< from the code page to UTF-16
    encoding, ///< from whole characters, which are wchar_t, to the code page
};

/// For one thread at a time. Lack of memory is std::bad_alloc.
class Converter
{
public:
    Converter(unsigned int page, Direction direction);
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter();

    /// Whether iconv knows the page; if not, nothing else may be called.
    bool valid() const noexcept;
    unsigned int page() const noexcept { return page_; }
    Direction direction() const noexcept { return direction_; }

    /// Converts as much as possible; 0 when that is all, otherwise the error number.
    int convert(char*& in, std::size_t& inLeft, char*& out, std::size_t& outLeft);

    /// Writes what iconv holds back until more text comes.
    int flush(char*& out, std::size_t& outLeft);

    /// Forgets all of the last text.
    void reset() noexcept;

private:
    unsigned int page_;
    Direction direction_;
    iconv_t handle_;
};

struct KeepOpen {
    void operator()(Converter* converter) const noexcept;
};
using BorrowedConverter = std::unique_ptr<Converter, KeepOpen>;

/// A converter in its initial state; null when iconv does not know the page. Throws std::bad_alloc.
BorrowedConverter borrowConverter(unsigned int page, Direction direction);

} // namespace Pelmora::Native::Platform
