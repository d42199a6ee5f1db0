#ifndef ZV_C2J_BRIDGE_H
#define ZV_C2J_BRIDGE_H

#include <jni.h>

#include <memory>

#include "zvException.h"
#include "zvJniFrame.h"

/// The Java virtual machine in this process: one that already runs is used, else one is started with the
/// class path of the environment variable CLASSPATH. It stays until the process ends.
class zvC2JBridge {
public:
    zvC2JBridge(const zvC2JBridge&) = delete;
    zvC2JBridge& operator=(const zvC2JBridge&) = delete;

    /// The bridge, which belongs to the class; null, with the reasons logged, when there is no machine to be
    /// had. A later call tries again.
    static zvC2JBridge* getInstance();

    /// The calling thread's environment; a thread that Java does not know is made known until it ends. Null
    /// when Java refuses it.
    JNIEnv* getEnv() const;

    /// The exception as the library throws it: its own message is the message form, the result's the stack
    /// trace.
    static zvException toException(const zvJniFrame& frame, jthrowable exception);
    /// What "getMessage" answers, empty for null. The class is printed on standard output.
    static zvString exceptionMessage(const zvJniFrame& frame, jthrowable exception);
    static zvString exceptionStackTrace(const zvJniFrame& frame, jthrowable exception);

private:
    using CreateJavaVM = decltype(&JNI_CreateJavaVM);
    using GetDefaultJavaVMInitArgs = decltype(&JNI_GetDefaultJavaVMInitArgs);
    using GetCreatedJavaVMs = decltype(&JNI_GetCreatedJavaVMs);

    zvC2JBridge() = default;

    bool initialize();
    bool loadLibrary();
    bool startMachine(class zvJvmOptionList& options);
    bool adoptMachine();
    void logVersion() const;

    static std::unique_ptr<zvC2JBridge> m_pBridge;

    void* m_pLibrary = nullptr;
    CreateJavaVM m_pCreateJavaVM = nullptr;
    GetDefaultJavaVMInitArgs m_pGetDefaultJavaVMInitArgs = nullptr;
    GetCreatedJavaVMs m_pGetCreatedJavaVMs = nullptr;
    JavaVM* m_pMachine = nullptr;
};

#endif
