#pragma once

#include "pelmora/log/LogStream.h"

#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace Pelmora
{

/// What is written to the error log while this object lives. The log is a file of the test
/// program's own in the system's temporary folder. Lines end in a line feed here.
class LogCapture
{
public:
    LogCapture()
    {
        static const std::string name =
            "pelmora-" + std::to_string(std::random_device()()) + ".log";
        Native::log_settings().file_name = name;
        before_ = content().size();
    }
    std::string text() const { return content().substr(before_); }

private:
    static std::string content()
    {
        std::ifstream file(Native::get_log().path());
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::size_t before_;
};

} // namespace Pelmora
