#ifndef ZV_FS_SECRETS_H
#define ZV_FS_SECRETS_H

#include "zvJniFrame.h"

/// RAII guard that gives Java the secrets, as system properties, as long as it reads its configuration.
class zvFSSecrets {
public:
    /// Sets a secret for the guards that are made later.
    static void set(const zvString& name, const zvString& value);

    explicit zvFSSecrets(JNIEnv& env);
    zvFSSecrets(const zvFSSecrets&) = delete;
    zvFSSecrets& operator=(const zvFSSecrets&) = delete;
    ~zvFSSecrets();

private:
    template <typename... Values>
    void call(const char* method, const char* signature, const zvString& name, const Values&... values) const;

    JNIEnv& m_env;
};

#endif
