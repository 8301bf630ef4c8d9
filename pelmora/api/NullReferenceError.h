#pragma once

#include "pelmora/export.h"

#include <memory>
#include <stdexcept>
#include <string>

namespace Pelmora
{

/// A reference that must lead to an object is null. The message names the argument or the field.
class PELMORA_API NullReferenceError : public std::logic_error
{
public:
    /// `name` is that of the argument or field that was null.
    explicit NullReferenceError(const std::string& name);
    ~NullReferenceError() override;

    NullReferenceError(const NullReferenceError&) = default;
    NullReferenceError& operator=(const NullReferenceError&) = default;
};

/// The reference itself; throws NullReferenceError with `name` when it is null.
template <class T>
const std::shared_ptr<T>& requireReference(const std::shared_ptr<T>& reference, const char* name)
{
    if (reference == nullptr)
        throw NullReferenceError(name);
    return reference;
}

} // namespace Pelmora
