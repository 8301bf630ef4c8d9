#include "pelmora/c/lastError.h"

#include "pelmora/api/ManagedXMLParser.h"
#include "pelmora/platform/threadSlot.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <new>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>

namespace Pelmora::C
{

std::atomic<int> threadsWithMessage = 0;

namespace
{

using Native::Platform::ThreadOwned;
using Native::Platform::ThreadSlot;

struct Message final : ThreadOwned {
    ~Message() override { set(""); }

    void set(std::string_view text) noexcept
    {
        threadsWithMessage += (text.empty() ? 0 : 1) - (bytes[0] == '\0' ? 0 : 1);
        if (text.size() >= bytes.size()) {
            std::size_t end = bytes.size() - 1;
            while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80)
                --end; // not within a character of UTF-8
            text = text.substr(0, end);
        }
        *std::copy(text.begin(), text.end(), bytes.begin()) = '\0';
    }

    std::array<char, 512> bytes = {};
};

ThreadSlot slot;

/// The last thread whose message had no place.
std::atomic<std::thread::id> speechless;

Message* ownMessage() noexcept
{
    return static_cast<Message*>(slot.get());
}

Message* madeMessage() noexcept
{
    auto* const message = new (std::nothrow) Message;
    if (message == nullptr || slot.set(message))
        return message;
    delete message;
    return nullptr;
}

} // namespace

pelmora_status fail(pelmora_status status, std::string_view message) noexcept
{
    Message* own = ownMessage();
    if (own == nullptr)
        own = madeMessage();
    if (own != nullptr)
        own->set(message.empty() ? "unknown failure" : message);
    else if (speechless.exchange(std::this_thread::get_id()) == std::thread::id())
        ++threadsWithMessage;
    return status;
}

pelmora_status failByException() noexcept
{
    try {
        throw;
    } catch (const NullArgument& error) {
        std::array<char, 64> text;
        const std::string_view parts[] = {"'", error.parameter, "' is null"};
        auto end = text.begin();
        for (const std::string_view part : parts)
            end = std::copy_n(part.begin(), std::min(std::ssize(part), text.end() - end), end);
        return fail(PELMORA_NULL_ARGUMENT, {text.begin(), end});
    } catch (const Failure& error) {
        return fail(error.status, error.message);
    } catch (const std::bad_alloc&) {
        return fail(PELMORA_OUT_OF_MEMORY, "out of memory");
    } catch (const std::length_error&) {
        return fail(PELMORA_OUT_OF_MEMORY, "larger than memory can be");
    } catch (const char* error) { // of the UTF-8 codec
        return fail(PELMORA_MALFORMED, error);
    } catch (const std::out_of_range& error) {
        return fail(PELMORA_BAD_ARGUMENT, error.what());
    } catch (const ManagedXML::NoDocumentError& error) {
        return fail(PELMORA_BAD_ARGUMENT, error.what());
    } catch (const ManagedXML::FileError& error) {
        return fail(PELMORA_SYSTEM, error.what());
    } catch (const std::system_error& error) {
        return fail(PELMORA_SYSTEM, error.what());
    } catch (const std::exception& error) {
        return fail(PELMORA_FAILED, error.what());
    } catch (...) {
        return fail(PELMORA_FAILED, "an exception without a message");
    }
}

void dropMessage() noexcept
{
    if (Message* const own = ownMessage(); own != nullptr) {
        own->set("");
        return;
    }
    std::thread::id id = std::this_thread::get_id();
    if (speechless.compare_exchange_strong(id, std::thread::id()))
        --threadsWithMessage;
}

} // namespace Pelmora::C

using namespace Pelmora::C;

const char* pelmora_last_error(void)
{
    if (const Message* const own = ownMessage(); own != nullptr)
        return own->bytes.data();
    return speechless.load() == std::this_thread::get_id() ? "out of memory, also for a message"
                                                           : "";
}
