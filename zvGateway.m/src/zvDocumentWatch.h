#ifndef ZV_DOCUMENT_WATCH_H
#define ZV_DOCUMENT_WATCH_H

#include <string>

#include "zvLogListener.h"

/// Listens, as long as it lives, for a document that stops in the middle. The library takes it as far as it
/// was read, with a warning; an event must not lose the rest of its files or of its configuration that way.
class zvDocumentWatch : public zvLogListener {
public:
    zvDocumentWatch();
    ~zvDocumentWatch() override;

    /// What the library said of such a document; empty when every document was whole.
    const std::string& complaint() const { return m_strComplaint; }

    void hear(zvLogLevel level, const zvString& message, const char* file, int line) override;

private:
    std::string m_strComplaint;
};

#endif
