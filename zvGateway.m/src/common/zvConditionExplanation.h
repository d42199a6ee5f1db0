#ifndef ZV_CONDITION_EXPLANATION_H
#define ZV_CONDITION_EXPLANATION_H

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "zvCndCondition.h"
#include "zvCndContext.h"

/// Evaluates a condition as the library does, and keeps what came of every part of it.
class zvConditionExplanation {
public:
    /// Throws the zvException of a comparison that cannot be made.
    zvConditionExplanation(const zvCndCondition& condition, const zvCndContext& context);

    struct Node {
        zvCndCondition condition;
        std::size_t depth;
        // Without one, the part was left out: its parent's outcome was settled before.
        std::optional<bool> outcome;
    };

    /// A part as it may be shown: a comparison that mentions a secret does not have its values.
    struct Part {
        std::size_t depth;
        /// A comparison's text, or AND, OR, NOT.
        zvString text;
        std::optional<bool> outcome;
        /// What a comparison compared, its left and right side; empty for none. A missing attribute has no
        /// value.
        std::vector<std::optional<zvString>> values;

        /// One line, indented by the depth.
        std::string line() const;
    };

    bool outcome() const;
    /// Every part, parents before their children in the order of evaluation.
    const std::vector<Node>& nodes() const { return m_nodes; }
    /// The same as they may be shown.
    std::vector<Part> parts() const;
    /// One line for each part.
    std::vector<std::string> lines() const;

    /// A comparison's text, or AND, OR, NOT.
    static zvString textOf(const zvCndCondition& part);

private:
    void evaluate(const zvCndCondition& condition);
    Part describe(const Node& node) const;

    const zvCndContext& m_context;
    std::vector<Node> m_nodes;
};

#endif
