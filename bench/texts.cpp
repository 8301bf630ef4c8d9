#include "bench/measure.h"
#include "bench/textSamples.h"

#include "pelmora/formatter/Formatter.h"
#include "pelmora/gettext/Catalogue.h"
#include "pelmora/gettext/TextLocale.h"
#include "pelmora/gettext/gstringUtil.h"

#include <algorithm>
#include <memory>
#include <utility>

// Catalogues, conversions and markup; what each row measures stands in goals.txt.

namespace
{

using namespace Pelmora::Native;
using namespace Pelmora::Bench;

GString wide(const Language& language, std::size_t bytes)
{
    return GString(std::u16string_view(wideSample(language, bytes)));
}

std::shared_ptr<const Catalogue> loaded()
{
    const auto catalogue = std::make_shared<Catalogue>();
    require(catalogue->load(catalogueFile));
    return catalogue;
}

const Measured found("look-up, found/ours",
                     [catalogue = loaded(), ids = InTurn(identifiers())]() mutable {
                         return catalogue->lookup(ids.next()).size();
                     });
const Measured missing("look-up, missing/ours",
                       [catalogue = loaded(), ids = InTurn(missingIdentifiers())]() mutable {
                           return catalogue->lookup(ids.next()).size();
                       });
const Measured load("load 10,000 messages/ours", [file = std::string(catalogueFile)] {
    Catalogue catalogue;
    return catalogue.load(file);
});

const char* someLabel()
{
    gettext_locale.init(catalogueFile);
    gettext_locale.set_translator(translate_from_catalogue);
    const auto chosen =
        std::find_if(identifiers().begin(), identifiers().end(), [](const std::string& identifier) {
            return identifier.starts_with("Dose for "); // "Dosis für "
        });
    require(chosen != identifiers().end());
    return chosen->c_str();
}

const Measured label("translated label/ours",
                     [label = someLabel()] { return gettext_locale.tr(label); });

const bool conversions = [] {
    for (const std::size_t bytes : {std::size_t(12), std::size_t(40), mebibyte}) {
        const std::string length =
            bytes == mebibyte ? ", 1 MiB " : ", " + std::to_string(bytes) + " bytes ";
        for (const Language& language : languages) {
            const std::string name = length + std::string(language.name) + "/ours";
            Measured("UTF-8 to UTF-16" + name,
                     [text = sample(language, bytes)] { return GString::from_utf8(text); });
            Measured("UTF-16 to UTF-8" + name,
                     [text = wide(language, bytes)] { return text.to_utf8(); });
        }
    }
    return true;
}();

const Measured fromPage("code page 1252 to UTF-16/ours",
                        [text = wide(languages[1], 40).to_narrow(1252)] {
                            return GString(text, 1252);
                        });
const Measured toPage("UTF-16 to code page 1252/ours",
                      [text = wide(languages[1], 40)] { return text.to_narrow(1252); });

GString thousand()
{
    GString text;
    while (text.size() < 1000)
        text += wide(languages[2], 3 * (1000 - text.size()));
    return text;
}

const Measured unencodable("1000 characters that the code page lacks/ours",
                           [text = thousand()] { return text.to_narrow(1252); });

const Measured escapeClean("escape, 1 MiB clean/ours", [text = sample(languages[1], mebibyte)] {
    return Formatter::escape(text);
});
const Measured escapeSpecial("escape, 1 MiB 5 % special/ours",
                             [text = markup("<>&", mebibyte)] { return Formatter::escape(text); });
const Measured escapeShort("escape, 40 bytes/ours",
                           [text = markup("<\"&", 40)] { return Formatter::escape(text); });
const Measured unescapeClean("unescape, 1 MiB clean/ours", [text = sample(languages[1], mebibyte)] {
    return Formatter::unescape(text);
});
const Measured unescapeSpecial("unescape, 1 MiB 5 % special/ours",
                               [text = Formatter::escape(markup("<>&\"'", mebibyte))] {
                                   return Formatter::unescape(text);
                               });
const Measured unescapeShort("unescape, 40 bytes/ours",
                             [text = Formatter::escape(markup("<\"&", 40))] {
                                 return Formatter::unescape(text);
                             });

const bool growth = [] {
    const std::pair<std::size_t, std::string> sides[] = {{2 * mebibyte, "/ours"},
                                                         {mebibyte, "/1 MiB"}};
    for (const auto& [bytes, side] : sides) {
        Measured("2 MiB, UTF-8 to UTF-16" + side,
                 [text = sample(languages[1], bytes)] { return GString::from_utf8(text); });
        Measured("2 MiB, UTF-16 to UTF-8" + side,
                 [text = wide(languages[1], bytes)] { return text.to_utf8(); });
        Measured("2 MiB, UTF-16 to code page 1252" + side,
                 [text = wide(languages[2], bytes)] { return text.to_narrow(1252); });
        Measured("2 MiB, escape" + side,
                 [text = markup("<>&\"'", bytes)] { return Formatter::escape(text); });
        Measured("2 MiB, unescape" + side, [text = Formatter::escape(markup("<>&\"'", bytes))] {
            return Formatter::unescape(text);
        });
    }
    return true;
}();

} // namespace
