#ifndef ZV_CFG_PATH_SEARCH_H
#define ZV_CFG_PATH_SEARCH_H

#include <cstddef>
#include <cstdint>
#include <vector>

/// Finds the ways through a directed graph that visit no node twice, one after the other: the shortest first,
/// and of two that are equally long the one whose edges were added first.
///
/// The time to the next way is polynomial in the size of the graph (Yen's algorithm with Lawler's partition):
/// a way that was found splits the remaining ones into sets, one for each node at which they leave it, and a
/// breadth-first search finds the first of each set. Large graphs still take long, so that the steps are
/// limited as well.
class zvCfgPathSearch {
public:
    using Path = std::vector<int>;  // the numbers of its edges

    enum class Outcome { complete, tooManyPaths, tooManySteps };

    struct Result {
        std::vector<Path> paths;
        Outcome outcome;  // of the paths that there are, those found are the first in any case
    };

    /// Nodes are numbered from 0.
    explicit zvCfgPathSearch(int nodes);

    /// Edges are numbered from 0 in the order of their addition.
    void addEdge(int from, int to);

    /// The ways from one node to another, `maxPaths` at most. A node is reached from itself by the empty way
    /// alone. A step looks at one edge or copies one.
    Result find(int from, int to, std::size_t maxPaths, std::int64_t maxSteps) const;

private:
    class Query;

    struct Edge {
        int from;
        int to;
    };

    std::vector<Edge> m_edges;
    std::vector<std::vector<int>> m_out;  // the edges out of each node, in order, and into it
    std::vector<std::vector<int>> m_in;
};

#endif
