#include "zvDOMErrorHandler.h"

#include <xercesc/dom/DOMError.hpp>
#include <xercesc/dom/DOMLocator.hpp>
#include <xercesc/dom/DOMNode.hpp>

#include "zvLogSource.h"
#include "zvXMLText.h"

using xercesc::DOMError;
using xercesc::DOMLocator;
using xercesc::DOMNode;
using zvXMLText::toString;

namespace {

constexpr zvLogSource logger("zvXMLUtils.m/src/zvDOMErrorHandler");

constexpr int mostCollected = 1'000'000;  // code units: errors can be many times as long as their document

// Each part is empty as far as the location, or the node in it, is missing.
struct Place {
    explicit Place(const DOMLocator* location) {
        if (location == nullptr) {
            return;
        }
        line = zvString(static_cast<long>(location->getLineNumber()));
        column = zvString(static_cast<long>(location->getColumnNumber()));
        if (const DOMNode* const node = location->getRelatedNode()) {
            nodeName = toString(node->getNodeName());
            nodeValue = toString(node->getNodeValue());
        }
    }

    zvString line, column, nodeName, nodeValue;
};

zvFinding findingOf(const DOMError& error, const zvString& message) {
    zvFinding finding;
    const bool isFatal = error.getSeverity() == DOMError::DOM_SEVERITY_FATAL_ERROR;
    finding.kind = isFatal ? zvFindingKind::notWellFormed : zvFindingKind::invalidMarkup;
    finding.text = isFatal ? "the document is read up to here only: " + message : message;
    if (const DOMLocator* const location = error.getLocation()) {
        finding.position = {static_cast<int>(location->getLineNumber()),
                            static_cast<int>(location->getColumnNumber())};
    }
    return finding;
}

}  // namespace

zvDOMErrorHandler::zvDOMErrorHandler(zvFindingSink* findings)
    : m_pFindings(findings), m_result(0), m_collected(0) {}
zvDOMErrorHandler::~zvDOMErrorHandler() = default;

bool zvDOMErrorHandler::handleError(const DOMError& error) {
    logger.info("Start: zvDOMErrorHandler::handleError");
    const int severity = error.getSeverity();
    const zvString message = toString(error.getMessage());
    const Place place(error.getLocation());
    bool goOn = false;
    logger.info("XML Parsing Severity Code = ", severity);
    if (severity == DOMError::DOM_SEVERITY_FATAL_ERROR) {
        logger.warn("XML document read up to line ", place.line, ", column ", place.column,
                    " only: ", message);
    } else {
        const zvString line = zvTextBuilder::concat(
            "\"XML PARSING ERROR: Severity code = ", severity, ", Error message = ", message,
            ", Node name = ", place.nodeName, ", Node value = ", place.nodeValue,
            ", Error line number = ", place.line, ", Error column number = ", place.column, ".\"");
        m_errors.addString(line);
        m_collected += line.size();
        goOn = m_collected < mostCollected;
    }
    if (m_pFindings != nullptr) {
        m_pFindings->report(findingOf(error, message));
    }
    logger.info("End: zvDOMErrorHandler::handleError");
    return goOn;
}

zvResult zvDOMErrorHandler::takeResult() {
    if (!m_errors.empty()) {
        constexpr const char* summary = "XML PARSING ERROR";
        logger.error(summary);
        m_result.setResult(-1);
        m_result.setMessage(summary);
        for (int i = 0; i < m_errors.numStrings(); ++i) {
            logger.error("", m_errors.getString(i));
        }
    }
    return m_result;
}
