#ifndef ZV_CFG_FINDINGS_H
#define ZV_CFG_FINDINGS_H

#include <vector>

#include "zvCfgDescription.h"
#include "zvFinding.h"
#include "zvTextBuilder.h"
#include "zvXMLElement.h"
#include "zvXMLParser.h"

/// How the readers of a configuration report what is wrong, beside what they log. Nothing is composed for a
/// parser without a sink for findings.
class zvCfgFindings {
public:
    /// The parser must live longer.
    explicit zvCfgFindings(const zvXMLParser& parser) : m_parser(parser), m_pSink(parser.getFindingSink()) {}

    bool areWanted() const { return m_pSink != nullptr; }
    zvTextPosition positionOf(const zvXMLElement& element) const {
        return m_parser.getPosition(element.node());
    }

    /// `part` is a zvCfgObject, or the text that names another part; `pieces` are those of a log message.
    template <class Part, typename... Pieces>
    void error(std::string_view kind, const zvXMLElement& where, const Part& part, const zvString& attribute,
               const Pieces&... pieces) const {
        report(zvFinding::Severity::error, kind, where, part, attribute, pieces...);
    }
    template <class Part, typename... Pieces>
    void warning(std::string_view kind, const zvXMLElement& where, const Part& part,
                 const zvString& attribute, const Pieces&... pieces) const {
        report(zvFinding::Severity::warning, kind, where, part, attribute, pieces...);
    }
    template <class Part, typename... Pieces>
    void report(zvFinding::Severity severity, std::string_view kind, const zvXMLElement& where,
                const Part& part, const zvString& attribute, const Pieces&... pieces) const {
        if (m_pSink != nullptr) {
            m_pSink->report({severity, kind, nameOf(part), attribute, positionOf(where),
                             zvTextBuilder::concat(pieces...)});
        }
    }

    /// As in "index, local name and key"; empty for no words.
    static zvString listOf(const std::vector<const char*>& words) {
        zvTextBuilder text;
        for (std::size_t i = 0; i < words.size(); ++i) {
            text.append(i == 0 ? "" : i + 1 == words.size() ? " and " : ", ").append(words[i]);
        }
        return text.toString();
    }

private:
    static zvString nameOf(const zvCfgObject& object) { return zvCfgDescription::ofObject(object); }
    static const zvString& nameOf(const zvString& part) { return part; }

    const zvXMLParser& m_parser;
    zvFindingSink* m_pSink;
};

#endif
