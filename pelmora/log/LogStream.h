#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/gstringUtil.h"
#include "pelmora/log/LogInterface.h"

#include <atomic>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

namespace Pelmora::Native
{

/// The process's error log: the text file "errors.txt" in the temporary folder, unless
/// `log_settings` says otherwise. `get_log` makes it on first use. It truncates the file and writes
/// a header with the date, the running system and a separator. At the end of the process it writes
/// "-eof-"; on Windows after the destructors of the program's own static objects. What static
/// objects log after that goes to the same file, after a second header with a warning and without
/// another "-eof-". A forked child writes no "-eof-".
///
/// Each item is in the file when its insertion returns, so that the file is complete even after a
/// crash. Items are appended: if several programs log to one file, each one that starts truncates
/// it, but none overwrites another's lines. Narrow text is written as it is, by convention in the
/// ANSI code page. If memory runs out, parts of the header may be missing.
///
/// If memory runs out before there is a log, `get_log` throws std::bad_alloc, and its next call
/// tries again. If the file cannot be opened, "unable to open " and its path are printed on
/// standard output without a line end, and everything that is logged is dropped without an error.
///
/// There is no lock. Items of several threads may mix. Requires: the first use is by one thread.
class PELMORA_API LogStream final : public LogInterface
{
public:
    ~LogStream() override;

    /// Writes the text as it is.
    void write(const char* text) override;

    /// The open file, or null.
    virtual std::FILE* file();

    /// The path of the file, also of one that could not be opened.
    const std::string& path() const noexcept { return path_; }

    /// Writes texts as they are and numbers in decimal.
    LogStream& operator<<(const char* text); ///< Requires: not null
    LogStream& operator<<(const std::string& text);
    LogStream& operator<<(const GString& text); ///< in the ANSI code page
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
    /// Calls it: `log << endl`.
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
    // Stream, path and markers stand in this order in every version of the object. Each write makes
    // the second marker equal to the first; the library itself reads neither.
    std::int32_t marker_ = 0;
    std::atomic<std::int32_t> writtenMarker_ = 0;
    std::uint32_t process_; ///< the one that made the log, and ends it
    bool composesHeader_ = true;
    std::string pending_; ///< what was logged while the header was composed
};

/// Ends a line.
PELMORA_API LogStream& endl(LogStream& log);

/// The process's log, made when there is none.
PELMORA_API LogStream& get_log();

/// How the log is made. Set before the first use; later changes have no effect until the log is
/// made again.
struct LogSettings {
    /// A name in the temporary folder or, if its second character is a ':', a whole path.
    std::string file_name = "errors.txt";
    std::string header_text;      ///< written after the header, with a separator, unless empty
    bool append_mode = false;     ///< appends to the file of an earlier process
    bool show_in_notepad = false; ///< see `set_show_in_notepad`
};

/// The settings of the next log that is made; the same object every time.
PELMORA_API LogSettings& log_settings();

/// Whether the finished log is opened in Notepad at the end of the process; only on Windows.
/// Returns `show`.
PELMORA_API bool set_show_in_notepad(bool show);

} // namespace Pelmora::Native
