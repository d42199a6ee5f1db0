#ifndef ZV_SHARED_CONNECTION_H
#define ZV_SHARED_CONNECTION_H

#include <chrono>
#include <optional>
#include <string>

#include "zvFileServerConnection.h"

/// The connection to the file server that the events of one process use, one after the other.
class zvSharedConnection {
public:
    /// Whether a connection is kept for the next event; otherwise it ends with its use.
    void keep() { m_bKept = true; }

    /// The use of the connection by one event.
    class Use {
    public:
        /// Takes the connection that was kept, or connects, as the file says. Throws a zvException.
        Use(zvSharedConnection& shared, const zvString& configuration, zvTransferObserver& observer);
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;
        ~Use();

        /// To be called when nothing failed: only then is the connection kept.
        void succeed() { m_bSucceeded = true; }

    private:
        zvSharedConnection& m_shared;
        bool m_bSucceeded = false;
    };

private:
    using Clock = std::chrono::steady_clock;

    bool canBeUsed(const zvString& configuration, const std::string& stamp) const;

    bool m_bKept = false;
    std::optional<zvFileServerConnection> m_connection;
    zvString m_strConfiguration;
    std::string m_strStamp;
    Clock::time_point m_lastUse;
};

#endif
