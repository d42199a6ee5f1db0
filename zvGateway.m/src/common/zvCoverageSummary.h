#ifndef ZV_COVERAGE_SUMMARY_H
#define ZV_COVERAGE_SUMMARY_H

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// What cases reach of a configuration, and what they do not. The texts are printable.
struct zvCoverageSummary {
    struct Count {
        const char* what = "";
        std::size_t reached = 0;
        std::size_t total = 0;
    };
    /// An outcome that a part of a mapping rule never has.
    struct MissingOutcome {
        /// Its place in zvConditionExplanation::nodes().
        std::size_t part;
        bool outcome;
    };
    /// What no case reaches.
    struct Gap {
        int line;
        /// As in `object "Part" -> "ReleasedPart"`.
        std::string subject;
        /// As in "from the remote system".
        std::string what;
        /// The zvCfgObject, zvCfgAttribute, zvCfgFileExtension or zvCfgTransition that it belongs to, while
        /// the library has the configuration.
        const void* place;
        std::optional<MissingOutcome> rule;

        std::string text() const { return subject + ": " + what; }
    };

    std::vector<Count> counts;
    std::vector<Gap> gaps;
};

#endif
