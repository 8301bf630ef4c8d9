#include "pelmora/log/LogStream.h"

#include "pelmora/base/detail/NeverDestroyed.h"
#include "pelmora/gettext/TextLocale.h"
#include "pelmora/log/osVersion.h"
#include "pelmora/platform/appendingFile.h"
#include "pelmora/platform/forcedUnwind.h"
#include "pelmora/platform/keepLoaded.h"
#include "pelmora/platform/localTime.h"
#include "pelmora/platform/notepad.h"
#include "pelmora/platform/processId.h"
#include "pelmora/platform/temporaryFolder.h"

#include <array>
#include <cstdlib>
#include <memory>
#include <new>
#include <utility>

namespace Pelmora::Native
{
namespace
{

/// Never destroyed, because destructors of static objects may still log.
struct LogState {
    LogSettings settings;
    std::string temporaryFolder;
    std::unique_ptr<LogStream> instance;
    bool destroyedOnce = false;
};

LogState& state()
{
    static NeverDestroyed<LogState> logState;
    return logState.value;
}

void endLog()
{
    const std::unique_ptr<LogStream> finished = std::move(state().instance);
}

std::string logPath()
{
    const std::string& name = state().settings.file_name;
    if (name.size() >= 2 && name[1] == ':')
        return name;
    std::string& folder = state().temporaryFolder;
    if (folder.empty())
        folder = Platform::temporaryFolder();
    return folder + name;
}

/// A translated label, or the label itself if the translator throws or memory runs out. The labels
/// are so short that they need no memory of their own.
std::string label(const char* text)
{
    try {
        return gettext_locale.tr(text).to_narrow();
    } catch (const Platform::ForcedUnwind&) {
        throw;
    } catch (...) {
        return text;
    }
}

/// A number's text, made without allocating.
class Printed
{
public:
    template <class... Values>
    explicit Printed(const char* format, Values... values)
    {
        const int length = std::snprintf(buffer_.data(), buffer_.size(), format, values...);
        length_ = static_cast<std::size_t>(length);
    }

    std::string_view text() const { return {buffer_.data(), length_}; }

private:
    std::array<char, 400> buffer_; // -DBL_MAX as "%f" has 317 characters
    std::size_t length_;
};

} // namespace

LogStream::LogStream() : path_(logPath()), process_(Platform::processId())
{
    const bool appends = state().destroyedOnce || state().settings.append_mode;
    file_ = Platform::openForAppending(path_, !appends);
    if (file_ == nullptr) {
        static_cast<void>(std::printf("unable to open %s", path_.c_str()));
        static_cast<void>(std::fflush(stdout));
    }
}

LogStream::~LogStream()
{
    state().destroyedOnce = true;
    // The log of a forked child is its parent's, which goes on.
    if (process_ != Platform::processId())
        return;
    // The program may end inside a translator that is asked for a label.
    endComposing();
    *this << "-eof-" << endl;
    // The file stays open, because what `file()` returned is valid until the process ends.
    if (state().settings.show_in_notepad)
        Platform::openInNotepad(path_);
}

/// Writes the header. Translating its labels may itself log; that output waits in `pending_` until
/// the header is written. If memory runs out, the header lacks some parts.
void LogStream::begin()
{
    struct End { // also when a translator's thread is cancelled
        LogStream& log;
        ~End() { log.endComposing(); }
    } const end = {*this};
    if (file_ != nullptr) {
        const std::string date = label("Date:"); // in this order, because each may log
        const std::string time = label(" Time:");
        composesHeader_ = false;
        writeHeader(date, time);
    }
}

void LogStream::writeHeader(const std::string& date, const std::string& time)
{
    const Platform::LocalTime now = Platform::localNow();
    *this << date;
    put(Printed("%02u/%02u/%02u", now.month, now.day, now.year % 100).text());
    *this << time;
    put(Printed("%02u:%02u:%02u", now.hour, now.minute, now.second).text());
    *this << endl;
    try {
        write_os_version(*this);
    } catch (const std::bad_alloc&) {
    }
    write_separator();
    if (!state().settings.header_text.empty()) {
        *this << state().settings.header_text << endl;
        write_separator();
    }
    if (state().destroyedOnce)
        *this << "Warning: the LogStream has been destroyed once" << endl;
}

void LogStream::endComposing()
{
    composesHeader_ = false;
    putToFile(pending_);
    pending_ = {};
}

std::FILE* LogStream::file()
{
    return file_;
}

void LogStream::write(const char* text)
{
    put(text);
}

LogStream& LogStream::put(std::string_view bytes)
{
    if (composesHeader_)
        pending_ += bytes;
    else
        putToFile(bytes);
    return *this;
}

void LogStream::putToFile(std::string_view bytes)
{
    if (std::FILE* const open = file(); open != nullptr)
        Platform::append(open, bytes);
    writtenMarker_.store(marker_, std::memory_order_relaxed);
}

LogStream& LogStream::operator<<(const char* text)
{
    return put(text);
}

LogStream& LogStream::operator<<(const std::string& text)
{
    return put(text);
}

LogStream& LogStream::operator<<(const GString& text)
{
    return put(text.to_narrow());
}

LogStream& LogStream::operator<<(char character)
{
    return put({&character, 1});
}

LogStream& LogStream::operator<<(short number)
{
    return put(Printed("%hd", number).text());
}

LogStream& LogStream::operator<<(unsigned short number)
{
    return put(Printed("%hu", number).text());
}

LogStream& LogStream::operator<<(int number)
{
    return put(Printed("%d", number).text());
}

LogStream& LogStream::operator<<(unsigned int number)
{
    return put(Printed("%u", number).text());
}

LogStream& LogStream::operator<<(long number)
{
    return put(Printed("%ld", number).text());
}

LogStream& LogStream::operator<<(unsigned long number)
{
    return put(Printed("%lu", number).text());
}

LogStream& LogStream::operator<<(long long number)
{
    return put(Printed("%lld", number).text());
}

LogStream& LogStream::operator<<(unsigned long long number)
{
    return put(Printed("%llu", number).text());
}

LogStream& LogStream::operator<<(double number)
{
    return put(Printed("%f", number).text());
}

LogStream& LogStream::operator<<(const void* address)
{
    return put(Printed("0x%llx",
                       static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(address)))
                   .text());
}

LogStream& LogStream::operator<<(bool value)
{
    return put(value ? "true" : "false");
}

void LogStream::write_separator()
{
    for (int i = 0; i < 15; ++i)
        *this << "-----";
    *this << endl;
}

LogStream& endl(LogStream& log)
{
    return log << '\n';
}

LogStream& get_log()
{
    std::unique_ptr<LogStream>& instance = state().instance;
    if (instance == nullptr) {
        // Stored before its header is written, so that a translator that logs finds it.
        instance.reset(new LogStream());
        // The handler and the log's state must outlive the last unload.
        Platform::keepLoaded();
        // atexit cannot be relied on during exit, so a log that is made then gets no end marker.
        if (!state().destroyedOnce)
            static_cast<void>(std::atexit(endLog));
        instance->begin();
    }
    return *instance;
}

LogSettings& log_settings()
{
    return state().settings;
}

bool set_show_in_notepad(bool show)
{
    state().settings.show_in_notepad = show;
    return show;
}

} // namespace Pelmora::Native
