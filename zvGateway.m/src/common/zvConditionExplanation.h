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

    bool outcome() const;
    /// Every part, parents before their children in the order of evaluation.
    const std::vector<Node>& nodes() const { return m_nodes; }
    /// One line for each part, children below their parents in the order of evaluation.
    std::vector<std::string> lines() const;

    /// What a line says of a part without its outcome: a comparison's text, or AND, OR, NOT.
    static zvString textOf(const zvCndCondition& part);

private:
    void evaluate(const zvCndCondition& condition);
    std::string describe(const Node& node) const;

    const zvCndContext& m_context;
    std::vector<Node> m_nodes;
};

#endif
