#include "pelmora/log/LogStream.h"

#include "pelmora/base/detail/NeverDestroyed.h"
#include "pelmora/gettext/TextLocale.h"
#include "pelmora/log/osVersion.h"
#include "pelmora/platform/localTime.h"
#include "pelmora/platform/notepad.h"
#include "pelmora/platform/temporaryFolder.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>

namespace Pelmora::Native
{
namespace
{

/// What lives as long as the process, so that destructors of static objects may still log.
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

/// A translated label; a translator that throws must not take the log with it.
std::string label(const char* text)
{
    try {
        return gettext_locale.tr(text).to_narrow();
    } catch (...) {
        return text;
    }
}

template <class Value>
std::string printed(const char* format, Value value)
{
    // DBL_MAX as "%f" has 309 digits before the point.
    std::array<char, 400> text;
    const int length = std::snprintf(text.data(), text.size(), format, value);
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace

LogInterface::~LogInterface() = default;

bool LogInterface::is_ok()
{
    return true;
}

LogStream::LogStream() : path_(logPath())
{
    const bool appends = state().destroyedOnce || state().settings.append_mode;
    file_ = std::fopen(path_.c_str(), appends ? "a" : "w");
    if (file_ == nullptr) {
        static_cast<void>(std::fputs(("unable to open " + path_).c_str(), stdout));
        static_cast<void>(std::fflush(stdout));
    }
}

LogStream::~LogStream()
{
    state().destroyedOnce = true;
    if (file_ != nullptr) {
        *this << "-eof-" << endl;
        // Left to the end of the process on purpose: a later log appends to the same file.
    }
    if (state().settings.show_in_notepad)
        Platform::openInNotepad(path_);
}

/// Writes what stands at the top. The labels are translated, and a translation that is missing, or
/// a translator that logs, comes back here: that waits until the header is complete.
void LogStream::begin()
{
    const std::string text = file_ == nullptr ? std::string() : header();
    composesHeader_ = false;
    putToFile(text);
    if (file_ != nullptr) {
        write_os_version(*this);
        write_separator();
        if (!state().settings.header_text.empty()) {
            *this << state().settings.header_text << endl;
            write_separator();
        }
        if (state().destroyedOnce)
            *this << "Warning: the LogStream has been destroyed once" << endl;
    }
    putToFile(std::exchange(pending_, std::string()));
}

std::string LogStream::header() const
{
    const Platform::LocalTime now = Platform::localNow();
    const auto twoDigits = [](unsigned int number) { return printed("%02u", number); };
    const std::string date = label("Date:"); // one after the other: each may report
    const std::string time = label(" Time:");
    return date + twoDigits(now.month) + "/" + twoDigits(now.day) + "/" +
           twoDigits(now.year % 100) + time + twoDigits(now.hour) + ":" + twoDigits(now.minute) +
           ":" + twoDigits(now.second) + "\n";
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
    if (std::FILE* const open = file(); open != nullptr) {
        static_cast<void>(std::fwrite(bytes.data(), 1, bytes.size(), open));
        static_cast<void>(std::fflush(open));
    }
    writtenMarker_ = marker_;
}

LogStream& LogStream::operator<<(const char* text)
{
    return put(text);
}

LogStream& LogStream::operator<<(const std::string& text)
{
    return put(text);
}

LogStream& LogStream::operator<<(char character)
{
    return put({&character, 1});
}

LogStream& LogStream::operator<<(short number)
{
    return put(printed("%hd", number));
}

LogStream& LogStream::operator<<(unsigned short number)
{
    return put(printed("%hu", number));
}

LogStream& LogStream::operator<<(int number)
{
    return put(printed("%d", number));
}

LogStream& LogStream::operator<<(unsigned int number)
{
    return put(printed("%u", number));
}

LogStream& LogStream::operator<<(long number)
{
    return put(printed("%ld", number));
}

LogStream& LogStream::operator<<(unsigned long number)
{
    return put(printed("%lu", number));
}

LogStream& LogStream::operator<<(long long number)
{
    return put(printed("%lld", number));
}

LogStream& LogStream::operator<<(unsigned long long number)
{
    return put(printed("%llu", number));
}

LogStream& LogStream::operator<<(double number)
{
    return put(printed("%f", number));
}

LogStream& LogStream::operator<<(const void* address)
{
    return put(printed("0x%llx",
                       static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(address))));
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
        // In place before its header is written, so that whoever logs meanwhile finds this one.
        instance.reset(new LogStream());
        // Not every C runtime takes a handler while the process ends: a log made then has no end.
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
