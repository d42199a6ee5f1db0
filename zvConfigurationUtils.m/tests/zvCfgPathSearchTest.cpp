#include "zvCfgPathSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

using Outcome = zvCfgPathSearch::Outcome;
using Path = zvCfgPathSearch::Path;

constexpr std::int64_t manySteps = 20000000;

// A graph with a brute-force reference search: finds all paths, then sorts them.
class Graph {
public:
    explicit Graph(int nodes) : m_search(nodes), m_out(static_cast<std::size_t>(nodes)) {}

    void add(int from, int to) {
        m_search.addEdge(from, to);
        m_out[static_cast<std::size_t>(from)].emplace_back(m_edges++, to);
    }
    void addBothWays(int from, int to) {
        add(from, to);
        add(to, from);
    }
    void addAmongAll(int first, int last) {
        for (int from = first; from <= last; ++from) {
            for (int to = first; to <= last; ++to) {
                add(from, to);
            }
        }
    }

    zvCfgPathSearch::Result find(int from, int to, std::size_t maxPaths = 1000,
                                 std::int64_t maxSteps = manySteps) const {
        return m_search.find(from, to, maxPaths, maxSteps);
    }

    std::vector<Path> all(int from, int to) const {
        std::vector<Path> paths;
        std::vector<bool> visited(m_out.size(), false);
        Path path;
        follow(from, to, visited, path, paths);
        std::sort(paths.begin(), paths.end(), [](const Path& left, const Path& right) {
            return left.size() != right.size() ? left.size() < right.size() : left < right;
        });
        return paths;
    }

private:
    void follow(int node, int to, std::vector<bool>& visited, Path& path, std::vector<Path>& paths) const {
        if (node == to) {
            paths.push_back(path);
            return;
        }
        visited[static_cast<std::size_t>(node)] = true;
        for (const auto& [edge, next] : m_out[static_cast<std::size_t>(node)]) {
            if (!visited[static_cast<std::size_t>(next)]) {
                path.push_back(edge);
                follow(next, to, visited, path, paths);
                path.pop_back();
            }
        }
        visited[static_cast<std::size_t>(node)] = false;
    }

    zvCfgPathSearch m_search;
    std::vector<std::vector<std::pair<int, int>>> m_out;
    int m_edges = 0;
};

TEST(zvCfgPathSearchTest, FindsEveryPathInOrder) {
    std::mt19937 random(1);
    std::size_t found = 0;
    for (int round = 0; round < 400; ++round) {
        const int nodes = 2 + round % 6;
        std::uniform_int_distribution<int> node(0, nodes - 1);
        Graph graph(nodes);
        for (int edge = 0; edge < nodes * 3; ++edge) {
            graph.add(node(random), node(random));  // including loops and parallel edges
        }
        const std::vector<Path> all = graph.all(0, nodes - 1);
        const zvCfgPathSearch::Result complete = graph.find(0, nodes - 1, all.size());
        EXPECT_EQ(complete.outcome, Outcome::complete);
        EXPECT_EQ(complete.paths, all) << "round " << round;
        found += all.size();
        if (all.size() > 1) {
            const zvCfgPathSearch::Result cut = graph.find(0, nodes - 1, all.size() / 2);
            EXPECT_EQ(cut.outcome, Outcome::tooManyPaths);
            EXPECT_EQ(cut.paths,
                      std::vector<Path>(all.begin(), all.begin() + static_cast<long>(all.size() / 2)));
        }
    }
    EXPECT_GT(found, 1000U);
}

TEST(zvCfgPathSearchTest, FindsOnlyTheEmptyPathFromANodeToItself) {
    Graph graph(2);
    graph.addAmongAll(0, 1);
    const zvCfgPathSearch::Result result = graph.find(0, 0);
    EXPECT_EQ(result.paths, std::vector<Path>{Path()});
    EXPECT_EQ(result.outcome, Outcome::complete);
}

// A brute-force search would not terminate in any of these cases; the number of steps is limited here.
TEST(zvCfgPathSearchTest, TerminatesOnHostileGraphs) {
    constexpr int clique = 60;
    constexpr int last = 20000;
    const auto dense = [](Graph& graph) { graph.addAmongAll(0, clique - 1); };
    struct Case {
        const char* name;
        int nodes;
        int to;
        void (*build)(Graph&, int to);
        std::size_t paths;
        Outcome outcome;
    };
    const Case cases[] = {
        {"all lead to all", clique, clique - 1, [](Graph&, int) {}, 1000, Outcome::tooManyPaths},
        {"the target is apart", clique + 1, clique, [](Graph&, int) {}, 0, Outcome::complete},
        {"the target leads back only", clique + 1, clique, [](Graph& graph, int to) { graph.add(to, 5); }, 0,
         Outcome::complete},
        {"one way out, at the start", clique + 1, clique, [](Graph& graph, int to) { graph.add(0, to); }, 1,
         Outcome::complete},
        {"a long way behind one door", clique + 20, clique + 19,
         [](Graph& graph, int to) {
             graph.add(clique - 1, clique);
             for (int node = clique; node < to; ++node) {
                 graph.add(node, node + 1);
             }
         },
         1000, Outcome::tooManyPaths},
        {"the start is the only door", clique + 2, clique + 1,
         [](Graph& graph, int to) {
             graph.addBothWays(0, clique);
             graph.add(clique, to);
             for (int node = 1; node < clique; ++node) {
                 graph.add(node, clique);
             }
         },
         1000, Outcome::tooManyPaths},
    };
    for (const Case& c : cases) {
        Graph graph(c.nodes);
        dense(graph);
        c.build(graph, c.to);
        const zvCfgPathSearch::Result result = graph.find(0, c.to);
        EXPECT_EQ(result.paths.size(), c.paths) << c.name;
        EXPECT_EQ(result.outcome, c.outcome) << c.name;
        EXPECT_TRUE(
            std::is_sorted(result.paths.begin(), result.paths.end(),
                           [](const Path& left, const Path& right) { return left.size() < right.size(); }))
            << c.name;
    }
    Graph ladder(2 * last);
    for (int node = 0; node + 2 < 2 * last; ++node) {
        ladder.add(node, node + 2 - node % 2);
        ladder.add(node, node + 3 - node % 2);
    }
    const zvCfgPathSearch::Result result = ladder.find(0, 2 * last - 2);
    EXPECT_EQ(result.outcome, Outcome::tooManySteps);
    ASSERT_FALSE(result.paths.empty()) << "what was found in time is kept";
    EXPECT_EQ(result.paths[0].size(), static_cast<std::size_t>(last - 1));
}

TEST(zvCfgPathSearchTest, FollowsAVeryLongChain) {
    constexpr int nodes = 100000;
    Graph chain(nodes);
    for (int node = 0; node + 1 < nodes; ++node) {
        chain.addBothWays(node, node + 1);
    }
    const zvCfgPathSearch::Result result = chain.find(0, nodes - 1);
    EXPECT_EQ(result.outcome, Outcome::complete);
    ASSERT_EQ(result.paths.size(), 1U);
    EXPECT_EQ(result.paths[0].size(), static_cast<std::size_t>(nodes - 1));
}

}  // namespace
