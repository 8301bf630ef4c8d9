#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/Catalogue.h"
#include "pelmora/gettext/gstringUtil.h"

#include <memory>
#include <string>

namespace Pelmora::Native
{

/// Where translations come from: called with a message identifier, answers with the text, or with
/// an empty one when it has none.
using Translator = GString (*)(std::string msgid);

/// The active language: its catalogue, its code, and the translator that the host installs. There
/// is one for the process, `gettext_locale`, which lives as long as the process does.
///
/// `init`, `set_translator` and `set_log_missing` are called before other threads translate; the
/// other operations only read.
class PELMORA_API TextLocale
{
public:
    TextLocale() noexcept = default;
    TextLocale(const TextLocale&) = delete;
    TextLocale& operator=(const TextLocale&) = delete;

    /// Makes `path`, a catalogue's file or a bare language code, the language: "de" and
    /// "lang/de.mo" both give the language "de" and load its catalogue. A file that cannot be
    /// loaded leaves the texts untranslated and is not reported. Keeps translator and log switch.
    /// Throws std::out_of_range when fewer than two characters stand before ".mo".
    void init(const std::string& path);

    /// Null for none. Without a translator nothing is translated, even with a catalogue; a host
    /// without wishes of its own installs `translate_from_catalogue`.
    void set_translator(Translator translator) noexcept { translator_ = translator; }

    /// Whether texts that are not translated are reported in the error log; off at first.
    void set_log_missing(bool report) noexcept { logMissing_ = report; }

    /// What the translator says, or `msgid` itself as text of the ANSI code page. Only the
    /// translator is asked, on purpose: a loaded catalogue merely makes untranslated texts
    /// reportable when there is no translator. `codePage` is that of narrow translations and has no
    /// effect so far. An exception that the translator throws passes through.
    GString translate(const std::string& msgid, unsigned int codePage) const;

    /// Translates a text without its tag: one to three characters, a letter and letters or digits,
    /// before '|', as in "r|mg/dL". Null gives an empty text.
    GString tr(const char* text) const;

    bool initialised() const noexcept { return initialised_; }
    /// The argument of the last `init`.
    const std::string& path() const noexcept { return path_; }
    const std::string& language() const noexcept { return language_; }

    /// The Windows code page of the language: 932, 949 and 936 for "ja", "ko" and "zh", or 1252.
    unsigned int code_page() const noexcept;
    bool uses_non_latin_code_page() const noexcept;
    /// The name of its encoding in markup and mail, "iso-8859-1" for most.
    const char* charset() const noexcept;
    /// The Windows language identifier, 0x400 for a language that is not known.
    unsigned int lang_id() const noexcept;

    /// The catalogue in use; null when there is none.
    const Catalogue* catalogue() const noexcept { return catalogue_.get(); }

    /// The code page of its text: UTF-8 where its header says so, otherwise that of the language.
    unsigned int catalogue_code_page() const noexcept
    {
        return catalogueIsUtf8_ ? utf8CodePage : code_page();
    }

    /// The catalogue's PO text. Requires: `catalogue()` is not null.
    std::string dump_catalogue() const { return catalogue_->to_po(); }

private:
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

/// The obvious translator: answers from the catalogue of `gettext_locale`, whose text is read in
/// the encoding that its header names, if that is UTF-8, or in the language's code page.
PELMORA_API GString translate_from_catalogue(std::string msgid);

} // namespace Pelmora::Native
