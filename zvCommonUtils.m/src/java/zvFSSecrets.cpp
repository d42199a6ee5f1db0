#include "zvFSSecrets.h"

#include <map>

#include "zvLogSource.h"

namespace {

constexpr zvLogSource logger("zvCommonUtils.m/src/zvFSSecrets");

using Secrets = std::map<zvString, zvString>;

Secrets& knownSecrets() {
    static Secrets secrets;
    return secrets;
}

}  // namespace

void zvFSSecrets::set(const zvString& name, const zvString& value) { knownSecrets()[name] = value; }

zvFSSecrets::zvFSSecrets(JNIEnv& env) : m_env(env) {
    for (const auto& [name, value] : knownSecrets()) {
        call("setProperty", "(Ljava/lang/String;Ljava/lang/String;)Ljava/lang/String;", name, value);
    }
}

zvFSSecrets::~zvFSSecrets() {
    for (const auto& secret : knownSecrets()) {
        call("clearProperty", "(Ljava/lang/String;)Ljava/lang/String;", secret.first);
    }
}

// What was not given shows as a missing secret.
template <typename... Values>
void zvFSSecrets::call(const char* method, const char* signature, const zvString& name,
                       const Values&... values) const {
    const zvJniFrame frame(m_env);
    try {
        frame.callStatic<jobject>("java.lang.System", method, signature,
                                  frame.toJava(zvTextBuilder::concat("zv.secret.", name)),
                                  frame.toJava(values)...);
    } catch (const zvJavaThrown&) {
        logger.warn("A secret could not be given to Java");
    }
}
