#include "zvCfgLifecycleConfig.h"

#include "zvMapIndex.h"

bool zvCfgLifecycleConfig::addState(zvCfgLcmState* state, const zvString& objectType) {
    zvCfgLcmGraph*& graph = m_byObjectType[objectType];
    if (graph == nullptr) {
        graph = new zvCfgLcmGraph(objectType);
        m_graphs.add(graph);
    }
    return graph->addState(state);
}

zvCfgLcmGraph* zvCfgLifecycleConfig::find(const zvString& objectType) const {
    zvCfgLcmGraph* const* const graph = zvMapFind(m_byObjectType, objectType);
    return graph == nullptr ? nullptr : *graph;
}
