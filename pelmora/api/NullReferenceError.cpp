#include "pelmora/api/NullReferenceError.h"

namespace Pelmora
{

NullReferenceError::NullReferenceError(const std::string& name)
    : std::logic_error("Pelmora: '" + name + "' is null; give it an object before this call")
{
}

NullReferenceError::~NullReferenceError() = default;

} // namespace Pelmora
