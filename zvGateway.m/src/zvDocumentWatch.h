#ifndef ZV_DOCUMENT_WATCH_H
#define ZV_DOCUMENT_WATCH_H

#include <string>

#include "zvLogListener.h"

/// Listens, as long as it lives, to what the library says of documents. One that stops in the middle is taken
/// as far as it was read, with a warning: an event must not lose the rest of its files or of its
/// configuration that way. Why one could not be written is in an error.
class zvDocumentWatch : public zvLogListener {
public:
    zvDocumentWatch();
    ~zvDocumentWatch() override;

    /// What the library said of such a document; empty when every document was whole.
    const std::string& complaint() const { return m_strComplaint; }

    /// The last error of all; empty without one.
    const std::string& error() const { return m_strError; }

    void hear(zvLogLevel level, const zvString& message, const char* file, int line) override;

private:
    std::string m_strComplaint;
    std::string m_strError;
};

#endif
