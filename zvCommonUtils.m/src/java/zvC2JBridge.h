#ifndef ZV_C2J_BRIDGE_H
#define ZV_C2J_BRIDGE_H

#include <jni.h>

#include <memory>
#include <string>
#include <vector>

#include "zvException.h"
#include "zvJniFrame.h"

class zvJvmOptionList;

/// The bridge to the in-process Java virtual machine: one that already runs, else one that is started with
/// the class path in the environment variable CLASSPATH. The JVM lives until the process ends.
class zvC2JBridge {
public:
    zvC2JBridge(const zvC2JBridge&) = delete;
    zvC2JBridge& operator=(const zvC2JBridge&) = delete;

    /// The singleton, created on first use and owned by the class; null, with the reasons logged, if no JVM
    /// can be started. A later call retries.
    static zvC2JBridge* getInstance();
    /// Adds an option, as the `java` command has them, for a JVM that is started later; after the class path.
    static void addOption(const std::string& option) { m_options.push_back(option); }
    /// Ends the JVM that was started, if any, once Java's own threads have ended: none can be started after
    /// it.
    static void destroyInstance();
    /// Sets what is called when a JVM that is started later ends the process; null for nothing.
    static void setEndObserver(void (*observer)()) { m_pEndObserver = observer; }
    /// Where the last attempt to start a JVM looked for its library; empty before the first one.
    static zvString searchedPlaces() { return m_searchedPlaces.c_str(); }

    /// The calling thread's JNI environment; the thread is attached on demand and detached when it ends. Null
    /// on failure.
    JNIEnv* getEnv() const;

    /// Converts a Java exception: the message is exceptionMessage(), the result's message is
    /// exceptionStackTrace().
    static zvException toException(const zvJniFrame& frame, jthrowable exception);
    /// The result of getMessage(), empty for null. Also prints the exception's class on standard output.
    static zvString exceptionMessage(const zvJniFrame& frame, jthrowable exception);
    static zvString exceptionStackTrace(const zvJniFrame& frame, jthrowable exception);

private:
    using CreateJavaVM = decltype(&JNI_CreateJavaVM);
    using GetDefaultJavaVMInitArgs = decltype(&JNI_GetDefaultJavaVMInitArgs);
    using GetCreatedJavaVMs = decltype(&JNI_GetCreatedJavaVMs);

    zvC2JBridge() = default;

    bool initialize();
    bool loadLibrary();
    bool startMachine(zvJvmOptionList& options);
    bool adoptMachine();
    static void addEndHooks(zvJvmOptionList& options);
    static void JNICALL atExit(jint code);
    static void JNICALL atAbort();
    void logVersion() const;

    static std::unique_ptr<zvC2JBridge> m_pBridge;
    static std::string m_searchedPlaces;
    static std::vector<std::string> m_options;
    static void (*m_pEndObserver)();

    void* m_pLibrary = nullptr;
    CreateJavaVM m_pCreateJavaVM = nullptr;
    GetDefaultJavaVMInitArgs m_pGetDefaultJavaVMInitArgs = nullptr;
    GetCreatedJavaVMs m_pGetCreatedJavaVMs = nullptr;
    JavaVM* m_pMachine = nullptr;
    bool m_bIsAdopted = false;
};

#endif
