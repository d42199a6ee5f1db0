#ifndef ZV_CFG_TRANSITION_PATH_H
#define ZV_CFG_TRANSITION_PATH_H

#include <vector>

#include "zvCoreObject.h"

class zvCfgLcmState;
class zvCfgTransition;

/// A way through a lifecycle, from state to state. What it holds belongs to the configuration manager.
class ZV_EXPORT zvCfgTransitionPath : public zvCoreObjectCfg {
public:
    /// The empty path, which leads from `start` to itself.
    explicit zvCfgTransitionPath(const zvCfgLcmState* start);
    zvCfgTransitionPath(const zvCfgTransitionPath& other);
    zvCfgTransitionPath(zvCfgTransitionPath&& other) noexcept;
    ~zvCfgTransitionPath() override;

    zvCfgTransitionPath& operator=(const zvCfgTransitionPath& other);

    /// Goes on by `transition` to `state`.
    void add(const zvCfgTransition* transition, const zvCfgLcmState* state);

    /// The number of transitions; there is one state more.
    int size() const;
    /// State 0 is where the path begins, state size() where it ends; null out of range.
    const zvCfgLcmState* getStateAt(int i) const;
    /// The transition from state `i` to state `i` + 1; null out of range.
    const zvCfgTransition* getTransitionAt(int i) const;

private:
    std::vector<const zvCfgLcmState*> m_states;
    std::vector<const zvCfgTransition*> m_transitions;
};

#endif
