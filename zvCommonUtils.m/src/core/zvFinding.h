#ifndef ZV_FINDING_H
#define ZV_FINDING_H

#include <string_view>

#include "zvString.h"

/// Where something begins in a document's source. Lines and columns count from 1; 0 is unknown.
struct zvTextPosition {
    int line = 0;
    int column = 0;
};

/// Something wrong in a document that was read: as a value what a log line says as text.
struct zvFinding {
    /// A warning tells of a default or an oversight; an error, of something that was left out or ended the
    /// reading.
    enum class Severity { warning, error };

    Severity severity = Severity::error;
    /// One of zvFindingKind's words, or one of the reporting program's own; static storage.
    std::string_view kind;
    /// The part of the document, as in `object "Part" -> "ReleasedPart"`; empty for the document itself.
    zvString object;
    /// The name of the attribute, extension, state or view in it; empty for none.
    zvString attribute;
    zvTextPosition position;
    /// What is wrong, in a sentence for people without a full stop.
    zvString text;
};

/// What the library's readers find. The words stay as they are: programs may compare with them.
namespace zvFindingKind {

// In any document.
constexpr std::string_view notLoaded = "not-loaded";           ///< cannot be opened, or is refused
constexpr std::string_view notWellFormed = "not-well-formed";  ///< read up to the position only
constexpr std::string_view invalidMarkup = "invalid-markup";   ///< against its own declarations
constexpr std::string_view notWritten = "not-written";         ///< the document could not be written
constexpr std::string_view wrongRoot = "wrong-root";
constexpr std::string_view emptyDocument = "empty-document";
// In a configuration.
constexpr std::string_view emptySection = "empty-section";
constexpr std::string_view missingName = "missing-name";
constexpr std::string_view duplicateName = "duplicate-name";
constexpr std::string_view invalidRule = "invalid-rule";
constexpr std::string_view ignoredText = "ignored-text";  ///< text after a complete mapping rule
constexpr std::string_view unknownTransferMode = "unknown-transfer-mode";
constexpr std::string_view unknownTransition = "unknown-transition";
constexpr std::string_view unknownState = "unknown-state";
// In a list of attachments.
constexpr std::string_view missingPath = "missing-path";
constexpr std::string_view defaultUsed = "default-used";

}  // namespace zvFindingKind

/// Takes findings as they come up, in the order of the reading.
class ZV_EXPORT zvFindingSink {
public:
    zvFindingSink() = default;
    zvFindingSink(const zvFindingSink&) = delete;
    zvFindingSink& operator=(const zvFindingSink&) = delete;
    virtual ~zvFindingSink();

    virtual void report(const zvFinding& finding) = 0;
};

#endif
