#pragma once

#include "fuzz/FuzzedInput.h"
#include "pelmora/c/pelmora.h"

#include <functional>
#include <memory>
#include <tuple>
#include <type_traits>
#include <vector>

namespace Pelmora
{

template <class T>
constexpr bool isText = std::is_same_v<T, char> || std::is_same_v<T, pelmora_char16>;

/// Makes the arguments of a call from the fuzzer's input, each by its type and the one before it,
/// and looks at what came back. Buffers are exactly as long as the call is told.
class CallArguments
{
public:
    CallArguments(FuzzedInput& input, std::string file) : input_(input), file_(std::move(file)) {}
    CallArguments(const CallArguments&) = delete;
    CallArguments& operator=(const CallArguments&) = delete;
    ~CallArguments()
    {
        while (!xmls_.empty() || !catalogues_.empty() || !dialogs_.empty())
            for (std::size_t kind = 0; kind < 3; ++kind)
                destroyOne(kind);
    }

    template <class... Types>
    void call(pelmora_status (*function)(Types...))
    {
        const std::tuple<Types...> arguments{make(static_cast<Types*>(nullptr))...};
        const pelmora_status status = std::apply(function, arguments);
        check(status >= PELMORA_OK && status < PELMORA_FAILED);
        check((status == PELMORA_OK) == (std::string_view(pelmora_last_error()).empty()));
        for (const auto& look : looks_)
            look(status);
        looks_.clear();
        memory_.clear();
    }

    /// Whether the numbers of the next calls are small ones.
    void limitNumbers(bool areLimited) { areLimited_ = areLimited; }

    void destroyOne(std::size_t kind)
    {
        if (kind % 3 == 0)
            destroyLast(xmls_, pelmora_xml_destroy);
        else if (kind % 3 == 1)
            destroyLast(catalogues_, pelmora_catalogue_destroy);
        else
            destroyLast(dialogs_, pelmora_dialog_template_destroy);
    }

private:
    using Look = std::function<void(pelmora_status)>;
    template <class Handle>
    using Handles = std::vector<Handle*>;

    template <class Handle>
    static void destroyLast(Handles<Handle>& handles, void (*destroy)(Handle*))
    {
        if (handles.empty()) {
            destroy(nullptr);
            return;
        }
        destroy(handles.back());
        handles.pop_back();
    }

    bool isNull() { return input_.below(16) == 15; }

    /// A copy in memory of just its size, which lives until the call is over.
    template <class T>
    T* kept(const T* first, std::size_t count)
    {
        std::shared_ptr<void> block(std::malloc(count * sizeof(T)), std::free);
        memory_.push_back(block);
        auto* const place = static_cast<T*>(block.get());
        if (count > 0)
            std::memcpy(place, first, count * sizeof(T));
        return place;
    }

    template <class Char>
    const Char* text(std::basic_string<Char> content)
    {
        lastIsText_ = true;
        lastCount_ = content.size();
        return kept(content.c_str(), content.size() + 1);
    }

    /// What goes in by value.
    template <class Number>
    requires std::is_arithmetic_v<Number> Number make(Number*)
    {
        const bool isSmall = input_.flag() || (areLimited_ && std::is_integral_v<Number>);
        const Number number =
            isSmall ? static_cast<Number>(input_.number<std::int8_t>()) : input_.number<Number>();
        // Code page 54936 cuts texts on purpose, and a debug build stops there.
        return number == static_cast<Number>(54936) ? Number(0) : number;
    }

    /// The length of what was made last, less than that, or the mark of a text that ends in a NUL;
    /// the capacity of a buffer is its own, or 0.
    std::size_t make(std::size_t*)
    {
        const std::size_t choice = input_.below(4);
        if (lastIsOut_)
            return capacity_ = choice == 0 ? 0 : lastCount_;
        if (lastIsText_ && choice == 0)
            return PELMORA_NUL_TERMINATED;
        return choice == 1 ? lastCount_ / 2 : lastCount_;
    }

    const char* make(const char**)
    {
        startInput();
        if (isNull())
            return nullptr;
        return text(input_.below(8) == 7 ? file_ : input_.line());
    }
    const pelmora_char16* make(const pelmora_char16**)
    {
        startInput();
        return isNull() ? nullptr : text(wide(input_.line()));
    }
    const void* make(const void**)
    {
        startInput();
        const std::string bytes = input_.bytes(input_.number<std::uint8_t>());
        lastCount_ = bytes.size();
        return isNull() ? nullptr : kept(bytes.data(), bytes.size());
    }
    const pelmora_element* make(const pelmora_element**)
    {
        startInput();
        if (isNull())
            return nullptr;
        std::vector<pelmora_element> elements(1 + input_.below(10));
        for (pelmora_element& element : elements)
            element = {make(static_cast<std::int32_t*>(nullptr)) % 5,
                       make(static_cast<std::int32_t*>(nullptr)) % 16,
                       make(static_cast<std::int32_t*>(nullptr))};
        lastCount_ = elements.size();
        return kept(elements.data(), elements.size());
    }

    template <class Handle>
    Handle* oneOf(const Handles<Handle>& handles)
    {
        const std::size_t place = input_.below(handles.size() + 1);
        return place == handles.size() ? nullptr : handles[place];
    }
    pelmora_xml* make(pelmora_xml**) { return oneOf(xmls_); }
    const pelmora_xml* make(const pelmora_xml**) { return oneOf(xmls_); }
    const pelmora_catalogue* make(const pelmora_catalogue**) { return oneOf(catalogues_); }
    pelmora_dialog_template* make(pelmora_dialog_template**) { return oneOf(dialogs_); }
    const pelmora_dialog_template* make(const pelmora_dialog_template**) { return oneOf(dialogs_); }

    /// Claims any length, and writes no more than there is room for.
    static std::size_t translate(const char* msgid, pelmora_char16* buffer, std::size_t room, void*)
    {
        const std::string_view answer(msgid);
        for (std::size_t i = 0; answer.size() < room && i <= answer.size(); ++i)
            buffer[i] = i < answer.size() ? static_cast<unsigned char>(answer[i]) : 0;
        return answer.size();
    }
    pelmora_translator make(pelmora_translator*) { return isNull() ? nullptr : translate; }

    template <class Handle>
    Handle** makeHandle(Handles<Handle>& handles)
    {
        if (isNull())
            return nullptr;
        Handle* const none = nullptr;
        Handle** const place = kept(&none, 1);
        looks_.push_back([place, &handles](pelmora_status status) {
            check((*place != nullptr) == (status == PELMORA_OK));
            if (*place != nullptr)
                handles.push_back(*place);
        });
        return place;
    }
    pelmora_xml** make(pelmora_xml***) { return makeHandle(xmls_); }
    pelmora_catalogue** make(pelmora_catalogue***) { return makeHandle(catalogues_); }
    pelmora_dialog_template** make(pelmora_dialog_template***) { return makeHandle(dialogs_); }

    /// The length of the buffer before it.
    std::size_t* make(std::size_t**)
    {
        if (isNull())
            return nullptr;
        std::size_t* const place = garbage<std::size_t>(1);
        looks_.push_back([place, room = capacity_, isText = lastIsText_](pelmora_status status) {
            if (status == PELMORA_BUFFER_TOO_SMALL)
                check(*place + (isText ? 1 : 0) > room);
            else if (status != PELMORA_OK)
                check(*place == 0);
            else
                check(room == 0 || *place + (isText ? 1 : 0) <= room);
        });
        return place;
    }

    /// A place for one result, or a buffer.
    template <class T>
    T* make(T**)
    {
        lastIsOut_ = true;
        lastIsText_ = isText<T>;
        lastCount_ = 1 + input_.below(80);
        if (isNull())
            return nullptr;
        using Item = std::conditional_t<std::is_void_v<T>, char, T>;
        auto* const place = garbage<Item>(lastCount_);
        if constexpr (isText<T>)
            looks_.push_back([this, place](pelmora_status status) {
                check(status == PELMORA_OK || capacity_ == 0 || *place == 0);
            });
        if constexpr (std::is_arithmetic_v<T> && !isText<T>)
            looks_.push_back(
                [place](pelmora_status status) { check(status == PELMORA_OK || *place == T()); });
        return place;
    }

    template <class T>
    T* garbage(std::size_t count)
    {
        const std::vector<unsigned char> bytes(count * sizeof(T), 0x5A);
        return reinterpret_cast<T*>(kept(bytes.data(), bytes.size()));
    }

    void startInput()
    {
        lastIsOut_ = false;
        lastIsText_ = false;
        lastCount_ = input_.below(3); // which a null is not allowed to have, unless it is 0
    }

    FuzzedInput& input_;
    std::string file_;
    bool areLimited_ = false;
    bool lastIsOut_ = false;
    bool lastIsText_ = false;
    std::size_t lastCount_ = 0;
    std::size_t capacity_ = 0;
    std::vector<std::shared_ptr<void>> memory_;
    std::vector<Look> looks_;
    Handles<pelmora_xml> xmls_;
    Handles<pelmora_catalogue> catalogues_;
    Handles<pelmora_dialog_template> dialogs_;
};

} // namespace Pelmora
