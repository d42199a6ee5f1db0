#ifndef ZV_DOM_ERROR_HANDLER_H
#define ZV_DOM_ERROR_HANDLER_H

#include <xercesc/dom/DOMErrorHandler.hpp>

#include "zvExport.h"
#include "zvFinding.h"
#include "zvResult.h"
#include "zvStringList.h"

/// Collects the warnings and errors of a parse, which make the load fail. A fatal error ends the parse but is
/// not collected: the document up to it is loaded.
class ZV_EXPORT zvDOMErrorHandler : public xercesc::DOMErrorHandler {
public:
    /// Also reports warnings and errors to `findings`, which may be null and must outlive the handler.
    explicit zvDOMErrorHandler(zvFindingSink* findings = nullptr);
    zvDOMErrorHandler(const zvDOMErrorHandler&) = delete;
    zvDOMErrorHandler& operator=(const zvDOMErrorHandler&) = delete;
    ~zvDOMErrorHandler() override;

    /// Called by the parser.
    /// @return whether to continue: not after a fatal error, nor after too many errors.
    bool handleError(const xercesc::DOMError& error) override;

    /// Logs the collected errors.
    /// @return code 0 without a message, or -1 and "XML PARSING ERROR" if there were any.
    zvResult takeResult();

private:
    zvFindingSink* m_pFindings;
    zvResult m_result;
    zvStringList m_errors;
    int m_collected;  // code units in m_errors
};

#endif
