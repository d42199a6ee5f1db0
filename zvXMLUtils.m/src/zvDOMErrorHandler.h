#ifndef ZV_DOM_ERROR_HANDLER_H
#define ZV_DOM_ERROR_HANDLER_H

#include <xercesc/dom/DOMErrorHandler.hpp>

#include "zvExport.h"
#include "zvFinding.h"
#include "zvResult.h"
#include "zvStringList.h"

/// Collects what goes wrong while a document is parsed: warnings and errors, which make the load fail. A
/// fatal error stops the parse but is not collected: what was read before it is a document.
class ZV_EXPORT zvDOMErrorHandler : public xercesc::DOMErrorHandler {
public:
    /// Also reports what goes wrong to `findings`, which may be null and must outlive the handler.
    explicit zvDOMErrorHandler(zvFindingSink* findings = nullptr);
    zvDOMErrorHandler(const zvDOMErrorHandler&) = delete;
    zvDOMErrorHandler& operator=(const zvDOMErrorHandler&) = delete;
    ~zvDOMErrorHandler() override;

    /// Called by the parser. @return whether to go on: not after a fatal error, nor when the collected lines
    /// have become too long.
    bool handleError(const xercesc::DOMError& error) override;

    /// Logs what was collected. @return code 0 and no message, or -1 and "XML PARSING ERROR" when anything
    /// was.
    zvResult takeResult();

private:
    zvFindingSink* m_pFindings;
    zvResult m_result;
    zvStringList m_errors;
    int m_collected;  // code units in m_errors
};

#endif
