#ifndef ZV_EVENT_LIST_PAGE_H
#define ZV_EVENT_LIST_PAGE_H

#include <array>
#include <cstdint>
#include <map>
#include <string>

#include "zvFoundEvent.h"
#include "zvPage.h"

/// The page with the events below a root: a section for each state, what needs somebody first, and in it a
/// group for each event with its last attempt's steps.
class zvEventListPage {
public:
    /// `now` is the page's time, in seconds since 1970.
    explicit zvEventListPage(std::int64_t now) : m_now(now) {}

    /// The event has to be read with all details.
    void add(const zvFoundEvent& event);
    std::string html(const std::string& root) const;

private:
    std::string groupOf(const zvFoundEvent& event);

    std::int64_t m_now;
    zvPageAnchors m_anchors;
    // By the directories' names, for each state.
    std::array<std::map<std::string, std::string>, zvFoundEvent::numStates> m_groups;
};

#endif
