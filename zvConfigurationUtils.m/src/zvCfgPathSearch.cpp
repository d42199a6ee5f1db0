#include "zvCfgPathSearch.h"

#include <algorithm>
#include <utility>

namespace {

std::size_t position(int number) { return static_cast<std::size_t>(number); }

// A set of numbers with an O(1) clear.
class Marks {
public:
    explicit Marks(std::size_t size) : m_rounds(size, 0) {}

    void clear() { ++m_round; }
    void add(int number) { m_rounds[position(number)] = m_round; }
    bool has(int number) const { return m_rounds[position(number)] == m_round; }

private:
    std::vector<std::uint32_t> m_rounds;
    std::uint32_t m_round = 1;
};

// The first of the paths with a common prefix of `deviation` edges that continue with none of the refused
// edges.
struct Candidate {
    zvCfgPathSearch::Path path;
    std::size_t deviation;
    std::vector<int> refused;

    // Reversed, so that the first path is on top of a heap.
    bool operator<(const Candidate& other) const {
        return path.size() != other.path.size() ? path.size() > other.path.size() : path > other.path;
    }
};

}  // namespace

class zvCfgPathSearch::Query {
public:
    Query(const zvCfgPathSearch& graph, int from, int to, std::int64_t maxSteps)
        : m_graph(graph),
          m_from(from),
          m_target(to),
          m_steps(maxSteps),
          m_visited(graph.m_out.size()),
          m_leading(graph.m_out.size()),
          m_measured(graph.m_out.size()),
          m_wanted(graph.m_out.size()),
          m_refused(graph.m_edges.size()),
          m_distances(graph.m_out.size()) {}

    Result run(std::size_t maxPaths) {
        Result result{{}, Outcome::complete};
        m_visited.add(m_from);
        measure(-1);
        std::swap(m_leading, m_measured);
        findFirst({}, 0, m_from, {});
        while (!m_candidates.empty() && !isExhausted()) {
            if (result.paths.size() == maxPaths) {
                result.outcome = Outcome::tooManyPaths;
                return result;
            }
            std::pop_heap(m_candidates.begin(), m_candidates.end());
            Candidate found = std::move(m_candidates.back());
            m_candidates.pop_back();
            split(found);
            result.paths.push_back(std::move(found.path));
        }
        if (isExhausted()) {
            result.outcome = Outcome::tooManySteps;
        }
        return result;
    }

private:
    const Edge& edge(int number) const { return m_graph.m_edges[position(number)]; }
    const std::vector<int>& edgesFrom(int node) const { return m_graph.m_out[position(node)]; }

    void spend(std::size_t steps) { m_steps -= static_cast<std::int64_t>(steps); }
    bool isExhausted() const { return m_steps < 0; }

    void split(const Candidate& found) {
        m_visited.clear();
        int node = m_from;
        for (std::size_t i = 0; i < found.path.size() && !isExhausted(); ++i) {
            m_visited.add(node);
            if (i >= found.deviation) {
                std::vector<int> refused = i == found.deviation ? found.refused : std::vector<int>();
                refused.push_back(found.path[i]);
                findFirst(found.path, i, node, std::move(refused));
            }
            node = edge(found.path[i]).to;
            spend(1);
        }
    }

    // Adds the first path, if any, that has the first `deviation` edges of `path`, which lead to `node`, and
    // continues with none of the refused edges.
    void findFirst(const Path& path, std::size_t deviation, int node, std::vector<int> refused) {
        m_refused.clear();
        std::for_each(refused.begin(), refused.end(), [this](int number) { m_refused.add(number); });
        spend(refused.size());
        if (!wantNeighboursOf(node)) {
            return;
        }
        const int distance = measure(node);
        if (distance < 0) {
            return;
        }
        Candidate candidate{{}, deviation, std::move(refused)};
        candidate.path.reserve(deviation + position(distance) + 1);
        candidate.path.assign(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(deviation));
        for (int left = distance; left >= 0; --left) {
            candidate.path.push_back(firstEdge(node, left));
            node = edge(candidate.path.back()).to;
        }
        spend(candidate.path.size());
        m_candidates.push_back(std::move(candidate));
        std::push_heap(m_candidates.begin(), m_candidates.end());
    }

    // Marks the nodes to which a path may continue from `node`.
    bool wantNeighboursOf(int node) {
        bool any = false;
        m_wanted.clear();
        for (const int number : edgesFrom(node)) {
            const int next = edge(number).to;
            if (m_leading.has(next) && !m_visited.has(next) && !m_refused.has(number)) {
                m_wanted.add(next);
                any = true;
            }
        }
        spend(edgesFrom(node).size());
        return any;
    }

    // Breadth-first search backwards from the target, over the nodes that are not on the path, until a wanted
    // node is reached; over all of them if `node` is -1. Returns the distance of the wanted node, -1 if none
    // is reached.
    int measure(int node) {
        m_measured.clear();
        m_queue.assign(1, m_target);
        setDistance(m_target, 0);
        for (std::size_t i = 0; i < m_queue.size() && !isExhausted(); ++i) {
            const int current = m_queue[i];
            if (node >= 0 && m_wanted.has(current)) {
                return m_distances[position(current)];
            }
            const std::vector<int>& edges = m_graph.m_in[position(current)];
            for (const int number : edges) {
                const int before = edge(number).from;
                if (!m_measured.has(before) && (node < 0 || !m_visited.has(before))) {
                    setDistance(before, m_distances[position(current)] + 1);
                    m_queue.push_back(before);
                }
            }
            spend(edges.size() + 1);
        }
        return -1;
    }

    void setDistance(int node, int distance) {
        m_measured.add(node);
        m_distances[position(node)] = distance;
    }

    // The first edge from `node` to a node at this distance from the target. Precondition: there is one.
    int firstEdge(int node, int distance) {
        const std::vector<int>& edges = edgesFrom(node);
        const auto found = std::find_if(edges.begin(), edges.end(), [&](int number) {
            const int next = edge(number).to;
            return m_measured.has(next) && m_distances[position(next)] == distance && !m_refused.has(number);
        });
        spend(static_cast<std::size_t>(found - edges.begin()) + 1);
        return *found;
    }

    const zvCfgPathSearch& m_graph;
    int m_from;
    int m_target;
    std::int64_t m_steps;
    Marks m_visited;   // the nodes of the current path
    Marks m_leading;   // the nodes from which the target is reachable
    Marks m_measured;  // the nodes with a distance
    Marks m_wanted;
    Marks m_refused;
    std::vector<int> m_distances;
    std::vector<int> m_queue;
    std::vector<Candidate> m_candidates;  // a heap
};

zvCfgPathSearch::zvCfgPathSearch(int nodes) : m_out(position(nodes)), m_in(position(nodes)) {}

void zvCfgPathSearch::addEdge(int from, int to) {
    const int number = static_cast<int>(m_edges.size());
    m_edges.push_back({from, to});
    m_out[position(from)].push_back(number);
    m_in[position(to)].push_back(number);
}

zvCfgPathSearch::Result zvCfgPathSearch::find(int from, int to, std::size_t maxPaths,
                                              std::int64_t maxSteps) const {
    if (from == to) {
        return {{Path()}, Outcome::complete};
    }
    return Query(*this, from, to, maxSteps).run(maxPaths);
}
