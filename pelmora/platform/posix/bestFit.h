#pragma once

namespace Pelmora::Native::Platform
{

/// What Windows writes in place of a character that the code page lacks: one that it has, '?' where
/// none comes close. Known for the pages of the languages' catalogues, 932, 936, 949 and 1252; '?'
/// in any other. Requires: `page` lacks `character`.
wchar_t bestFit(unsigned int page, wchar_t character) noexcept;

} // namespace Pelmora::Native::Platform
