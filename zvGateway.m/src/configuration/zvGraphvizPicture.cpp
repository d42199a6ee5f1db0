#include <gvc.h>

#include <map>
#include <vector>

#include "zvExport.h"
#include "zvLifecyclePicture.h"
#include "zvUtf8.h"

namespace {

// Beyond that nobody finds a state in it, and the layout takes seconds and more.
constexpr int maxStates = 60;
constexpr int maxTransitions = 180;

struct GraphCloser {
    void operator()(Agraph_t* graph) const { agclose(graph); }
};
using Graph = std::unique_ptr<Agraph_t, GraphCloser>;

// Graphviz takes texts that are not constant and leaves them as they are.
char* text(const char* constant) { return const_cast<char*>(constant); }
char* text(const std::string& constant) { return text(constant.c_str()); }

struct Setting {
    int kind;
    const char* name;
    const char* value;
};

// The limits hold for the search for the best layout, which a lifecycle without any order would drag on.
constexpr Setting settings[] = {
    {AGRAPH, "rankdir", "LR"},
    {AGRAPH, "mclimit", "0.3"},
    {AGRAPH, "nslimit", "1"},
    {AGRAPH, "nslimit1", "1"},
    {AGRAPH, "bgcolor", "transparent"},
    {AGRAPH, "nodesep", "0.35"},
    {AGRAPH, "ranksep", "0.7"},
    {AGRAPH, "charset", "UTF-8"},
    {AGRAPH, "id", ""},
    {AGNODE, "shape", "box"},
    {AGNODE, "style", "rounded"},
    {AGNODE, "fontname", "Arial"},
    {AGNODE, "fontsize", "12"},
    {AGNODE, "margin", "0.2,0.1"},
    {AGNODE, "color", "#8a94a3"},
    {AGNODE, "fontcolor", "#1d2530"},
    {AGNODE, "id", ""},
    {AGNODE, "label", ""},
    {AGEDGE, "color", "#2563a8"},
    {AGEDGE, "style", "solid"},
    {AGEDGE, "arrowsize", "0.7"},
    {AGEDGE, "id", ""},
    {AGEDGE, "class", ""},
};

// A name, which Graphviz writes with its entities as they are.
std::string name(const zvString& given) {
    zvString result = given;
    result.replace("&", "&amp;");
    return zvUtf8::encode(result);
}

// A label, in which it resolves entities, and sequences that begin with a backslash.
std::string label(const zvString& given) {
    zvString result = given;
    result.replace("\\", "\\\\");
    return name(result);
}

int numTransitions(const zvCfgLcmGraph& lifecycle) {
    int count = 0;
    for (int i = 0; i < lifecycle.numStates(); ++i) {
        count += lifecycle.getStateAt(i)->numOutgoingTransitions();
    }
    return count;
}

Graph emptyGraph(const zvCfgLcmGraph& lifecycle, const std::string& id) {
    const std::string title = "Lifecycle of " + name(lifecycle.getObjectType());
    Graph graph(agopen(text(title), Agdirected, nullptr));
    for (const Setting& setting : settings) {
        agattr(graph.get(), setting.kind, text(setting.name), text(setting.value));
    }
    agset(graph.get(), text("id"), text(id));
    return graph;
}

Graph graphOf(const zvCfgLcmGraph& lifecycle, const std::string& id) {
    Graph graph = emptyGraph(lifecycle, id);
    std::map<zvString, Agnode_t*> nodes;
    for (int i = 0; i < lifecycle.numStates(); ++i) {
        const zvCfgLcmState& state = *lifecycle.getStateAt(i);
        Agnode_t* const node = agnode(graph.get(), text(name(state.localName())), 1);
        if (!nodes.emplace(state.localName(), node).second) {
            continue;  // a second state of the name, which no transition leads to
        }
        const bool hasRemoteName = !state.remoteName().empty() && state.remoteName() != state.localName();
        agset(node, text("id"), text(id + "-state" + std::to_string(i)));
        agset(node, text("label"),
              text(label(state.localName()) + (hasRemoteName ? "\\n" + label(state.remoteName()) : "")));
    }
    int number = 0;
    for (int i = 0; i < lifecycle.numStates(); ++i) {
        const zvCfgLcmState& state = *lifecycle.getStateAt(i);
        for (int k = 0; k < state.numOutgoingTransitions(); ++k) {
            const zvCfgTransition& transition = *state.getOutgoingTransition(k);
            Agedge_t* const edge =
                agedge(graph.get(), nodes[state.localName()], nodes[transition.toState()], nullptr, 1);
            agset(edge, text("id"), text(id + "-transition" + std::to_string(number++)));
            if (transition.getType() == zvCfgTransitionDemote) {
                agset(edge, text("style"), text("dashed"));
                agset(edge, text("class"), text("demotion"));
            }
        }
    }
    return graph;
}

class GraphvizPicture : public zvLifecyclePicture {
public:
    GraphvizPicture() : m_pContext(gvContext()) { agseterr(AGMAX); }
    ~GraphvizPicture() override { gvFreeContext(m_pContext); }

    std::string svg(const zvCfgLcmGraph& lifecycle, const std::string& id) const override {
        if (lifecycle.numStates() > maxStates || numTransitions(lifecycle) > maxTransitions) {
            return "";
        }
        const Graph graph = graphOf(lifecycle, id);
        const std::string document = render(graph.get());
        // Before the element stands what belongs to a file of its own.
        const std::size_t start = document.find("<svg");
        return start == std::string::npos ? "" : document.substr(start);
    }

private:
    std::string render(Agraph_t* graph) const {
        std::string rendered;
        if (gvLayout(m_pContext, graph, "dot") == 0) {
            char* data = nullptr;
            unsigned int length = 0;
            if (gvRenderData(m_pContext, graph, "svg", &data, &length) == 0) {
                rendered.assign(data, length);
            }
            gvFreeRenderData(data);
        }
        gvFreeLayout(m_pContext, graph);
        return rendered;
    }

    GVC_t* m_pContext;
};

}  // namespace

// What the program looks for in this library. The caller owns the picture.
extern "C" ZV_EXPORT zvLifecyclePicture* zvCreateLifecyclePicture() { return new GraphvizPicture; }
