#include "pelmora/platform/posix/converters.h"

#include "pelmora/base/codePageNumbers.h"

#include <array>
#include <atomic>
#include <bit>
#include <cerrno>
#include <new>
#include <string>

namespace Pelmora::Native::Platform
{
namespace
{

std::string iconvName(unsigned int page)
{
    if (page == utf8CodePage)
        return "UTF-8";
    if (page == 54936)
        return "GB18030";
    if (page == 20866)
        return "KOI8-R";
    if (page >= 28591 && page <= 28605)
        return "ISO-8859-" + std::to_string(page - 28590);
    return "CP" + std::to_string(page);
}

const iconv_t noHandle = reinterpret_cast<iconv_t>(-1); // NOLINT: iconv's own error value

iconv_t openHandle(const std::string& page, Direction direction)
{
    const char* const utf16 = std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE";
    // From whole characters, iconv takes one step. With a second one before it, it would decode all
    // that it was given anew for each character that the page lacks.
    return direction == Direction::decoding ? iconv_open(utf16, page.c_str())
                                            : iconv_open(page.c_str(), "WCHAR_T");
}

/// `noHandle` for a page that iconv does not know.
iconv_t openKnownHandle(unsigned int page, Direction direction)
{
    const std::string name = iconvName(page);
    iconv_t handle = openHandle(name, direction);
    if (handle == noHandle && errno != ENOMEM) {
        // Without memory to load a converter, iconv does not know its page either.
        constexpr std::size_t moreThanLoadingTakes = 65536;
        static_cast<void>(std::make_unique<char[]>(moreThanLoadingTakes));
        handle = openHandle(name, direction);
    }
    if (handle == noHandle && errno == ENOMEM)
        throw std::bad_alloc();
    return handle;
}

int errorOf(std::size_t irreversible)
{
    if (irreversible != static_cast<std::size_t>(-1))
        return 0;
    if (errno == ENOMEM)
        throw std::bad_alloc();
    return errno;
}

// The open converters that no thread uses now, each in the place that page and direction give it;
// of those that share a place, the latest. Of two threads that convert alike at once, one opens a
// converter of its own. There is no lock, because a fork might copy it while it is held. glibc's
// take 33 kB for decoding and hardly anything for encoding: 1 MB for all places at most.
constinit std::array<std::atomic<Converter*>, 31> places = {};
constinit std::atomic<bool> mayKeep = true;

std::atomic<Converter*>& placeOf(unsigned int page, Direction direction)
{
    return places[(2U * page + static_cast<unsigned int>(direction)) % places.size()];
}

/// Closes them when the library is unloaded and when the program ends. What destructors of static
/// objects convert later is not kept.
class Closer
{
public:
    Closer() = default;
    Closer(const Closer&) = delete;
    Closer& operator=(const Closer&) = delete;
    ~Closer()
    {
        mayKeep = false;
        for (std::atomic<Converter*>& place : places)
            const std::unique_ptr<Converter> closed(place.exchange(nullptr));
    }
};

const Closer closer;

} // namespace

Converter::Converter(unsigned int page, Direction direction)
    : page_(page), direction_(direction), handle_(openKnownHandle(page, direction))
{
}

Converter::~Converter()
{
    if (valid())
        iconv_close(handle_);
}

bool Converter::valid() const noexcept
{
    return handle_ != noHandle;
}

int Converter::convert(char*& in, std::size_t& inLeft, char*& out, std::size_t& outLeft)
{
    return errorOf(iconv(handle_, &in, &inLeft, &out, &outLeft));
}

int Converter::flush(char*& out, std::size_t& outLeft)
{
    return errorOf(iconv(handle_, nullptr, nullptr, &out, &outLeft));
}

void Converter::reset() noexcept
{
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
}

void KeepOpen::operator()(Converter* converter) const noexcept
{
    std::unique_ptr<Converter> unused(converter);
    if (!mayKeep)
        return;
    unused->reset();
    auto& place = placeOf(unused->page(), unused->direction());
    const std::unique_ptr<Converter> replaced(place.exchange(unused.release()));
}

BorrowedConverter borrowConverter(unsigned int page, Direction direction)
{
    std::unique_ptr<Converter> kept(placeOf(page, direction).exchange(nullptr));
    if (kept != nullptr && kept->page() == page && kept->direction() == direction)
        return BorrowedConverter(kept.release());
    auto opened = std::make_unique<Converter>(page, direction);
    return BorrowedConverter(opened->valid() ? opened.release() : nullptr);
}

} // namespace Pelmora::Native::Platform
