#include "zvCfgLifecycleConfig.h"

bool zvCfgLifecycleConfig::addState(zvCfgLcmState* state, const zvString& objectType) {
    zvCfgLcmGraph*& graph = m_byObjectType[objectType];
    if (graph == nullptr) {
        graph = new zvCfgLcmGraph(objectType);
        m_graphs.add(graph);
    }
    return graph->addState(state);
}

zvCfgLcmGraph* zvCfgLifecycleConfig::find(const zvString& objectType) const {
    const auto found = m_byObjectType.find(objectType);
    return found == m_byObjectType.end() ? nullptr : found->second;
}
