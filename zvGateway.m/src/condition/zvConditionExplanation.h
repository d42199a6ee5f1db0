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

    bool outcome() const;
    /// One line for each part, children below their parents in the order of evaluation.
    std::vector<std::string> lines() const;

private:
    struct Node {
        zvCndCondition condition;
        std::size_t depth;
        // Without one, the part was left out: its parent's outcome was settled before.
        std::optional<bool> outcome;
    };

    void evaluate(const zvCndCondition& condition);
    std::string describe(const Node& node) const;

    const zvCndContext& m_context;
    // Parents before their children.
    std::vector<Node> m_nodes;
};

#endif
