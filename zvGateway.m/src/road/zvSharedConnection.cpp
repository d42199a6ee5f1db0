#include "zvSharedConnection.h"

#include "zvFSClient.h"
#include "zvFileStamp.h"
#include "zvNativePath.h"

namespace {

// After that a server may have closed it.
constexpr std::chrono::seconds longestPause{20};

}  // namespace

zvSharedConnection::Use::Use(zvSharedConnection& shared, const zvString& configuration,
                             zvTransferObserver& observer)
    : m_shared(shared) {
    const std::string stamp = fileStamp(toNativePath(configuration));
    if (shared.canBeUsed(configuration, stamp)) {
        zvFSClient::setObserver(&observer);
        return;
    }
    shared.m_connection.reset();
    shared.m_connection.emplace(configuration, observer);
    shared.m_strConfiguration = configuration;
    shared.m_strStamp = stamp;
}

zvSharedConnection::Use::~Use() {
    if (m_bSucceeded && m_shared.m_bKept) {
        zvFSClient::setObserver(nullptr);
        m_shared.m_lastUse = Clock::now();
    } else {
        m_shared.m_connection.reset();
    }
}

bool zvSharedConnection::canBeUsed(const zvString& configuration, const std::string& stamp) const {
    return m_connection && configuration == m_strConfiguration && stamp == m_strStamp &&
           Clock::now() - m_lastUse < longestPause;
}
