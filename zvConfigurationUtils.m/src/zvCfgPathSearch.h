#ifndef ZV_CFG_PATH_SEARCH_H
#define ZV_CFG_PATH_SEARCH_H

#include <cstddef>
#include <cstdint>
#include <vector>

/// Finds the simple paths between two nodes of a directed graph, shortest first; of two equally long ones the
/// one whose edges were added first comes first.
///
/// Yen's algorithm with Lawler's partition: each path found splits the remaining ones into sets, one for each
/// node at which they deviate from it, and a breadth-first search finds the first path of each set. The time
/// per path is polynomial in the size of the graph; since that is still long for large graphs, the number of
/// steps is limited as well.
class zvCfgPathSearch {
public:
    using Path = std::vector<int>;  // edge numbers

    enum class Outcome { complete, tooManyPaths, tooManySteps };

    struct Result {
        std::vector<Path> paths;
        Outcome outcome;  // in any case the paths found are the first ones
    };

    /// Nodes are numbered from 0.
    explicit zvCfgPathSearch(int nodes);

    /// Edges are numbered from 0 in the order of their addition.
    void addEdge(int from, int to);

    /// The paths from one node to another, at most `maxPaths`. From a node to itself there is the empty path
    /// only. A step is the visit or the copy of one edge.
    Result find(int from, int to, std::size_t maxPaths, std::int64_t maxSteps) const;

private:
    class Query;

    struct Edge {
        int from;
        int to;
    };

    std::vector<Edge> m_edges;
    std::vector<std::vector<int>> m_out;  // per node: the outgoing edges, in order
    std::vector<std::vector<int>> m_in;   // per node: the incoming edges
};

#endif
