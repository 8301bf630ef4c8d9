/// @namespace Pelmora
/// The public objects of the simulators: units, vocabulary, error report, initialiser.

/// @namespace Pelmora::Native
/// The native values and functions beneath the public objects: units, texts, log, registry,
/// windows.

/// @namespace Pelmora::Native::Formatter
/// Markup: escaping, its reverse, replacing.

/// @namespace Pelmora::Native::FontUtil
/// Fonts and their measures.

/// @namespace ManagedXML
/// Questions about one XML document.

/// @namespace ManagedHTTP
/// Downloads.
