#pragma once

#include <string_view>

// What Windows writes in code page 1252 for characters that the code page does not have, where
// that is not the question mark: the best fits of the table bestfit1252.txt that Microsoft gave to
// the Unicode Consortium. Rows of characters and, at the same places, their bytes; ascending. The
// full-width forms U+FF01 to U+FF5E, which fit U+0021 to U+007E, are not listed.

namespace Pelmora::Native::Platform
{

struct BestFitRow {
    std::u16string_view characters;
    std::string_view bytes;
};

// clang-format off
inline constexpr BestFitRow bestFit1252[] = {
    {u"\u0081\u008D\u008F\u0090\u009D", "\x81\x8D\x8F\x90\x9D"},
    {u"\u0100\u0101\u0102\u0103\u0104\u0105\u0106\u0107", "AaAaAaCc"},
    {u"\u0108\u0109\u010A\u010B\u010C\u010D\u010E\u010F", "CcCcCcDd"},
    {u"\u0110\u0111\u0112\u0113\u0114\u0115\u0116\u0117", "\xD0" "dEeEeEe"},
    {u"\u0118\u0119\u011A\u011B\u011C\u011D\u011E\u011F", "EeEeGgGg"},
    {u"\u0120\u0121\u0122\u0123\u0124\u0125\u0126\u0127", "GgGgHhHh"},
    {u"\u0128\u0129\u012A\u012B\u012C\u012D\u012E\u012F", "IiIiIiIi"},
    {u"\u0130\u0131\u0134\u0135\u0136\u0137\u0139\u013A", "IiJjKkLl"},
    {u"\u013B\u013C\u013D\u013E\u0141\u0142\u0143\u0144", "LlLlLlNn"},
    {u"\u0145\u0146\u0147\u0148\u014C\u014D\u014E\u014F", "NnNnOoOo"},
    {u"\u0150\u0151\u0154\u0155\u0156\u0157\u0158\u0159", "OoRrRrRr"},
    {u"\u015A\u015B\u015C\u015D\u015E\u015F\u0162\u0163", "SsSsSsTt"},
    {u"\u0164\u0165\u0166\u0167\u0168\u0169\u016A\u016B", "TtTtUuUu"},
    {u"\u016C\u016D\u016E\u016F\u0170\u0171\u0172\u0173", "UuUuUuUu"},
    {u"\u0174\u0175\u0176\u0177\u0179\u017A\u017B\u017C", "WwYyZzZz"},
    {u"\u0180\u0189\u0191\u0197\u019A\u019F\u01A0\u01A1", "b\xD0\x83IlOOo"},
    {u"\u01AB\u01AE\u01AF\u01B0\u01B6\u01C0\u01C3\u01CD", "tTUuz|!A"},
    {u"\u01CE\u01CF\u01D0\u01D1\u01D2\u01D3\u01D4\u01D5", "aIiOoUuU"},
    {u"\u01D6\u01D7\u01D8\u01D9\u01DA\u01DB\u01DC\u01DE", "uUuUuUuA"},
    {u"\u01DF\u01E4\u01E5\u01E6\u01E7\u01E8\u01E9\u01EA", "aGgGgKkO"},
    {u"\u01EB\u01EC\u01ED\u01F0\u0261\u02B9\u02BA\u02BC", "oOojg'\"'"},
    {u"\u02C4\u02C8\u02C9\u02CA\u02CB\u02CD\u02DA\u0300", "^'\xAF\xB4`_\xB0`"},
    {u"\u0301\u0302\u0303\u0304\u0305\u0308\u030A\u030E", "\xB4^~\xAF\xAF\xA8\xB0\""},
    {u"\u0327\u0331\u0332\u037E\u0393\u0398\u03A3\u03A6", "\xB8__;GTSF"},
    {u"\u03A9\u03B1\u03B2\u03B4\u03B5\u03BC\u03C0\u03C3", "Oa\xDF" "de\xB5ps"},
    {u"\u03C4\u03C6\u04BB\u0589\u066A\u2000\u2001\u2002", "tfh:%   "},
    {u"\u2003\u2004\u2005\u2006\u2010\u2011\u2017\u2024", "    --=\xB7"},
    {u"\u2032\u2035\u2044\u2070\u2074\u2075\u2076\u2077", "'`/\xB0" "4567"},
    {u"\u2078\u207F\u2080\u2081\u2082\u2083\u2084\u2085", "8n012345"},
    {u"\u2086\u2087\u2088\u2089\u20A1\u20A4\u20A7\u2102", "6789\xA2\xA3PC"},
    {u"\u2107\u210A\u210B\u210C\u210D\u210E\u2110\u2111", "EgHHHhII"},
    {u"\u2112\u2113\u2115\u2118\u2119\u211A\u211B\u211C", "LlNPPQRR"},
    {u"\u211D\u2124\u2128\u212A\u212B\u212C\u212D\u212E", "RZZK\xC5" "BCe"},
    {u"\u212F\u2130\u2131\u2133\u2134\u2205\u2212\u2213", "eEFMo\xD8-\xB1"},
    {u"\u2215\u2216\u2217\u2218\u2219\u221A\u221E\u2223", "/\\*\xB0\xB7v8|"},
    {u"\u2229\u2236\u223C\u2248\u2261\u2264\u2265\u226A", "n:~\x98===\xAB"},
    {u"\u226B\u22C5\u2302\u2303\u2310\u2320\u2321\u2329", "\xBB\xB7\xA6^\xAC()<"},
    {u"\u232A\u2500\u2502\u250C\u2510\u2514\u2518\u251C", ">-\xA6+++++"},
    {u"\u2524\u252C\u2534\u253C\u2550\u2551\u2552\u2553", "\xA6--+-\xA6++"},
    {u"\u2554\u2555\u2556\u2557\u2558\u2559\u255A\u255B", "++++++++"},
    {u"\u255C\u255D\u255E\u255F\u2560\u2561\u2562\u2563", "++\xA6\xA6\xA6\xA6\xA6\xA6"},
    {u"\u2564\u2565\u2566\u2567\u2568\u2569\u256A\u256B", "------++"},
    {u"\u256C\u2580\u2584\u2588\u258C\u2590\u2591\u2592", "+\xAF_\xA6\xA6\xA6\xA6\xA6"},
    {u"\u2593\u25A0\u263C\u2758\u3000\u3008\u3009\u300A", "\xA6\xA6\xA4| <>\xAB"},
    {u"\u300B\u301A\u301B\u30FB", "\xBB[]\xB7"},
};
// clang-format on

} // namespace Pelmora::Native::Platform
