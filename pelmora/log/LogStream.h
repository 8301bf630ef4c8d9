#pragma once

#include "pelmora/export.h"
#include "pelmora/log/LogInterface.h"

#include <atomic>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

namespace Pelmora::Native
{

/// The process's error log, a text file in the temporary folder, which is "errors.txt" there unless
/// `log_settings` says otherwise. `get_log` makes it on first use: the file is begun anew, with the
/// date, the running system and a separator. It ends with "-eof-" at the end of the process; what
/// is logged after that, by destructors of static objects, goes to the same file after a second
/// header with a warning, and no further end. On Windows, the end comes after the destructors of
/// the program's own static objects. A forked child writes no end.
///
/// Each item is in the file when its insertion returns, so that the file is complete also after a
/// crash. It goes to the end of the file: of several programs that log at once, the last one to
/// start begins the file anew, and from then on no line is written over. Narrow text is written as
/// it is, in the ANSI code page by convention. Where memory runs out, parts of the header may be
/// missing.
///
/// When the file cannot be opened, "unable to open " and its path are printed on standard output
/// without a line end, and everything that is logged is dropped without an error.
///
/// Once there is a log, the library stays loaded until the process ends.
///
/// There is no lock: lines of several threads may mix item by item, and the first use comes from
/// one thread.
class PELMORA_API LogStream final : public LogInterface
{
public:
    ~LogStream() override;

    /// The bytes up to the NUL.
    void write(const char* text) override;

    /// The open file, or null.
    virtual std::FILE* file();

    const std::string& path() const noexcept { return path_; }

    LogStream& operator<<(const char* text); ///< Requires: not null
    LogStream& operator<<(const std::string& text);
    LogStream& operator<<(char character);
    LogStream& operator<<(short number);
    LogStream& operator<<(unsigned short number);
    LogStream& operator<<(int number);
    LogStream& operator<<(unsigned int number);
    LogStream& operator<<(long number);
    LogStream& operator<<(unsigned long number);
    LogStream& operator<<(long long number);
    LogStream& operator<<(unsigned long long number);
    LogStream& operator<<(double number);       ///< as "%f", also for float
    LogStream& operator<<(const void* address); ///< "0x1f"
    LogStream& operator<<(bool value);          ///< "true" or "false"
    LogStream& operator<<(LogStream& (*manipulator)(LogStream&)) { return manipulator(*this); }

    /// 75 dashes and a line feed.
    void write_separator();

private:
    friend PELMORA_API LogStream& get_log();

    LogStream();
    void begin();
    void writeHeader(const std::string& date, const std::string& time);
    void endComposing();
    LogStream& put(std::string_view bytes);
    void putToFile(std::string_view bytes);

    std::FILE* file_ = nullptr;
    std::string path_;
    // Nothing here reads the two markers; they belong to the layout. Every write makes them equal.
    std::int32_t marker_ = 0;
    std::atomic<std::int32_t> writtenMarker_ = 0;
    std::uint32_t process_; ///< the one that ends the log
    bool composesHeader_ = true;
    std::string pending_; ///< what was logged while the header was composed
};

/// Ends a line.
PELMORA_API LogStream& endl(LogStream& log);

/// The process's log, made when there is none.
PELMORA_API LogStream& get_log();

/// How the log is made. Changes take effect when it is made the next time: set them before the
/// first use.
struct LogSettings {
    /// In the temporary folder, unless the second character is a ':'; then a path of its own.
    std::string file_name = "errors.txt";
    std::string header_text;      ///< written below the header with a separator, when not empty
    bool append_mode = false;     ///< keep what an earlier process left in the file
    bool show_in_notepad = false; ///< see `set_show_in_notepad`
};

PELMORA_API LogSettings& log_settings();

/// Whether the finished log is opened in Notepad at the end of the process; only on Windows.
/// Returns `show`.
PELMORA_API bool set_show_in_notepad(bool show);

} // namespace Pelmora::Native
