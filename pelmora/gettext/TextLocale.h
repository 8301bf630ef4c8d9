#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/Catalogue.h"
#include "pelmora/gettext/gstringUtil.h"

#include <memory>
#include <string>
#include <string_view>

namespace Pelmora::Native
{

/// The host's source of translations: returns the text for a message identifier, or an empty text
/// when it has none.
using Translator = GString (*)(std::string msgid);

/// The active language: its catalogue, its code, and the translator that the host installs. There
/// is one for the process, `gettext_locale`, which lives as long as the process does.
///
/// Requires: `init`, `set_translator` and `set_log_missing` are called before other threads
/// translate. The other operations only read, and may run in several threads at once.
class PELMORA_API TextLocale
{
public:
    /// Without a language and a translator.
    TextLocale() noexcept = default;
    TextLocale(const TextLocale&) = delete;
    TextLocale& operator=(const TextLocale&) = delete;

    /// Sets the language and loads its catalogue. `path` is a catalogue's file or a bare language
    /// code: "lang/de.mo" and "de" both give the language "de". If the file cannot be loaded, texts
    /// stay untranslated, and nothing reports it. Translator and log switch are kept. Throws
    /// std::out_of_range if fewer than two characters stand before ".mo", and std::bad_alloc.
    /// Language and catalogue then stay as they were; the path, too, when memory ran out.
    void init(const std::string& path);

    /// Null removes the translator. Without one nothing is translated, even when a catalogue is
    /// loaded; most hosts install `translate_from_catalogue`.
    void set_translator(Translator translator) noexcept { translator_ = translator; }

    /// Whether texts that are not translated are reported in the error log; off at first.
    void set_log_missing(bool report) noexcept { logMissing_ = report; }

    /// The translator's answer, or `msgid` itself, read as text of the ANSI code page. Only the
    /// translator is asked, on purpose. A loaded catalogue merely makes untranslated texts
    /// reportable when there is no translator. `codePage` has no effect. What the translator throws
    /// passes through.
    GString translate(const std::string& msgid, unsigned int codePage) const;

    /// Translates a text without its tag, as in "r|mg/dL": a letter and up to two letters or digits
    /// before a '|'. Null gives an empty text.
    GString tr(const char* text) const;

    /// Whether `init` has set a language.
    bool initialised() const noexcept { return initialised_; }
    /// The argument of the last `init`.
    const std::string& path() const noexcept { return path_; }
    /// The language's code, "de"; empty before `init`.
    const std::string& language() const noexcept { return language_; }

    /// The Windows code page of the language: 932, 949 and 936 for "ja", "ko" and "zh", or 1252.
    unsigned int code_page() const noexcept;
    /// Whether that page is another one than 1252.
    bool uses_non_latin_code_page() const noexcept;
    /// The name that this code page has in markup and mail, such as "iso-8859-1".
    const char* charset() const noexcept;
    /// The Windows language identifier; 0x400, the process's default, for an unknown language.
    unsigned int lang_id() const noexcept;

    /// The catalogue in use; null when there is none.
    const Catalogue* catalogue() const noexcept { return catalogue_.get(); }

    /// The code page of the catalogue's text: UTF-8 if its header says so, otherwise the
    /// language's.
    unsigned int catalogue_code_page() const noexcept
    {
        return catalogueIsUtf8_ ? utf8CodePage : code_page();
    }

    /// The catalogue's PO text. Requires: `catalogue()` is not null.
    std::string dump_catalogue() const { return catalogue_->to_po(); }

private:
    GString translated(std::string_view msgid) const;

    Translator translator_ = nullptr;
    std::unique_ptr<Catalogue> catalogue_;
    bool catalogueIsUtf8_ = false;
    std::string path_;
    std::string language_;
    bool initialised_ = false;
    bool logMissing_ = false;
};

/// The process's language.
extern PELMORA_API TextLocale& gettext_locale;

/// The translator that most hosts install: looks the identifier up in the catalogue of
/// `gettext_locale` and reads the translation in `catalogue_code_page`.
PELMORA_API GString translate_from_catalogue(std::string msgid);

} // namespace Pelmora::Native
