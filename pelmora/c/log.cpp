#include "pelmora/c/border.h"
#include "pelmora/log/LogStream.h"
#include "pelmora/log/osVersion.h"

#include <string>

using namespace Pelmora;
using namespace Pelmora::C;

namespace
{

template <class Work>
pelmora_status log(const Work& work)
{
    return guarded([&] {
        work(Native::get_log());
        return PELMORA_OK;
    });
}

template <class Item>
pelmora_status logItem(const Item& item)
{
    return log([&](Native::LogStream& stream) { stream << item; });
}

} // namespace

pelmora_status pelmora_log_configure(const char* file_name, const char* header, int append)
{
    return guarded([&] {
        std::string name(requiredText(file_name, "file_name"));
        std::string headerText(header == nullptr ? "" : header);
        Native::LogSettings& settings = Native::log_settings();
        settings.file_name = std::move(name);
        settings.header_text = std::move(headerText);
        settings.append_mode = append != 0;
        return PELMORA_OK;
    });
}

pelmora_status pelmora_log_show_in_notepad(int show)
{
    return guarded([&] {
        Native::set_show_in_notepad(show != 0);
        return PELMORA_OK;
    });
}

pelmora_status pelmora_log_write(const char* text)
{
    return guarded([&] {
        const char* const bytes = &required(text, "text");
        Native::get_log() << bytes;
        return PELMORA_OK;
    });
}

pelmora_status pelmora_log_end_line(void)
{
    return log([](Native::LogStream& stream) { stream << Native::endl; });
}

pelmora_status pelmora_log_line(const char* text)
{
    return guarded([&] {
        const char* const bytes = &required(text, "text");
        Native::get_log() << bytes << Native::endl;
        return PELMORA_OK;
    });
}

pelmora_status pelmora_log_separator(void)
{
    return log([](Native::LogStream& stream) { stream.write_separator(); });
}

pelmora_status pelmora_log_os_version(void)
{
    return log(Native::write_os_version);
}

pelmora_status pelmora_log_signed(int64_t number)
{
    return logItem(number);
}

pelmora_status pelmora_log_unsigned(uint64_t number)
{
    return logItem(number);
}

pelmora_status pelmora_log_double(double number)
{
    return logItem(number);
}

pelmora_status pelmora_log_pointer(const void* address)
{
    return logItem(address);
}

pelmora_status pelmora_log_bool(int value)
{
    return logItem(value != 0);
}

pelmora_status pelmora_log_path(char* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [] { return Native::get_log().path(); });
}

pelmora_status pelmora_os_description(uint32_t platform, uint32_t major, uint32_t minor,
                                      uint32_t build, const char* service_pack, char* buffer,
                                      size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        return Native::osDescription({platform, major, minor, build,
                                      std::string(requiredText(service_pack, "service_pack"))});
    });
}
