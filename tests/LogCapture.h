#pragma once

#include "pelmora/log/LogStream.h"
#include "pelmora/platform/processId.h"

#include <fstream>
#include <iterator>
#include <string>

namespace Pelmora
{

/// What is written to the error log while this object lives. The log is a file of the test
/// program's own in the system's temporary folder. Lines end in a line feed here.
class LogCapture
{
public:
    std::string text() const { return content().substr(before_.size()); }

private:
    static std::string content()
    {
        Native::log_settings().file_name =
            "pelmora-" + std::to_string(Native::Platform::processId()) + ".log";
        std::ifstream file(Native::get_log().path());
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::string before_ = content();
};

} // namespace Pelmora
