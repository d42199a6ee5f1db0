#include "zvEventListPage.h"

#include "zvConsole.h"
#include "zvEventListPageCss.h"
#include "zvTimeSpan.h"

namespace {

using State = zvFoundEvent::State;

struct StateSection {
    State state;
    zvPage::Section section;
};
// What needs somebody comes first.
constexpr StateSection sections[] = {
    {State::stopped, {"stopped", "Stopped"}},          {State::neverEnded, {"never-ended", "Never ended"}},
    {State::unreadable, {"unreadable", "Unreadable"}}, {State::noRecord, {"no-record", "Without a record"}},
    {State::running, {"running", "Running"}},          {State::dryRun, {"dry-run", "Tried"}},
    {State::arrived, {"arrived", "Arrived"}}};

std::string escaped(const std::string& text) { return zvPage::escaped(text.c_str()); }

std::string fromUtf8(const std::string& utf8) { return escaped(zvConsole::printableUtf8(utf8)); }

std::string span(const std::string& html) { return "<span>" + html + "</span> "; }

std::string factsOf(const zvFoundEvent& event, std::int64_t now) {
    const zvEventHistory& history = event.history;
    std::string facts;
    if (!history.eventId.empty()) {
        facts += span("EventId <code>" + fromUtf8(history.eventId) + "</code>");
    }
    if (history.attempts > 0) {
        facts += span(escaped(zvConsole::counted(history.attempts, "attempt")));
        facts += span("last " + fromUtf8(history.begin) + " on " + fromUtf8(history.host));
    }
    if (const std::optional<std::int64_t> age = event.age(now)) {
        facts += span(escaped(zvTimeSpan::text(*age)) + " old");
    }
    return facts;
}

std::string tableOf(const zvFoundEvent& event) {
    std::string table =
        zvPage::openTable("steps", (event.name() + ": steps").c_str(), {"Step", "Outcome", "Detail"});
    for (const zvEventHistory::Step& step : event.history.steps) {
        table += zvPage::row({fromUtf8(step.name), fromUtf8(step.outcome), fromUtf8(step.detail)});
    }
    return table + zvPage::closeTable();
}

}  // namespace

void zvEventListPage::add(const zvFoundEvent& event) {
    m_groups[static_cast<std::size_t>(event.state)].emplace(event.name(), groupOf(event));
}

std::string zvEventListPage::groupOf(const zvFoundEvent& event) {
    const bool isStopped = event.state == State::stopped || event.state == State::unreadable;
    const std::string state = "<span class=\"badge" + std::string(isStopped ? " warm" : "") + "\">" +
                              escaped(event.stateText()) + "</span>";
    const std::string more =
        span(escaped(event.argument("EventName"))) + span(escaped(event.object())) + state;
    std::string group = zvPage::openGroup(m_anchors.add("event", {event.name().c_str()}),
                                          "<b>" + escaped(event.name()) + "</b>", " " + more,
                                          static_cast<int>(event.history.steps.size()));
    const std::string reason = event.reason();
    if (!reason.empty()) {
        group += "<p class=\"reason\">" + escaped(reason) + "</p>\n";
    }
    // What a search looks at are rows.
    group += "<p class=\"facts\" data-row>" + factsOf(event, m_now) + "</p>\n";
    if (event.state == State::arrived) {
        group += "<details><summary>Steps</summary>\n" + tableOf(event) + "</details>\n";
    } else if (!event.history.steps.empty()) {
        group += tableOf(event);
    }
    return group + zvPage::closeGroup();
}

std::string zvEventListPage::html(const std::string& root) const {
    zvPage::Frame frame;
    frame.title = zvString("Events in ") + zvConsole::printable(root.c_str()).c_str();
    frame.searched = "Directory, EventId, event, object, reason";
    frame.style = {zvEventListPageCss, zvEventListPageCssHash};
    for (const StateSection& entry : sections) {
        if (!m_groups[static_cast<std::size_t>(entry.state)].empty()) {
            frame.sections.push_back(entry.section);
        }
    }
    std::string page = zvPage::begin(frame);
    for (const StateSection& entry : sections) {
        const auto& groups = m_groups[static_cast<std::size_t>(entry.state)];
        if (groups.empty()) {
            continue;
        }
        page += zvPage::openSection(entry.section, static_cast<int>(groups.size()));
        for (const auto& [name, group] : groups) {
            page += group;
        }
        page += zvPage::closeSection();
    }
    return page + zvPage::end(frame);
}
