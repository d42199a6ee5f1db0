#include "zvC2JBridge.h"

#include <atomic>
#include <clocale>
#include <cstdio>
#include <string>

#include "zvCharString.h"
#include "zvJvmLibrary.h"
#include "zvJvmOptionList.h"
#include "zvLogSource.h"
#include "zvPlatform.h"

namespace {

constexpr zvLogSource logger("zvCommonUtils.m/src/zvC2JBridge");

constexpr jint jniVersion = JNI_VERSION_1_2;

constexpr const char* searchPathHints[] = {
    "For Windows add to PATH variable.", "For Solaris/Linux add to LD_LIBRARY_PATH variable.",
    "For AIX add to LIBPATH variable.", "For HP-UX add to SHLIB_PATH variable."};

constexpr const char* versionProperties[] = {"java.runtime.name", "java.runtime.version", "java.vm.name",
                                             "java.vm.version"};

// RAII guard for the start of the JVM, which takes the encoding of file names from the environment's locale
// and sets that locale for the process. It sees the process's own locale there, if one was set, and
// afterwards locale and environment are restored.
class LocaleKeeper {
public:
    LocaleKeeper()
        : m_locale(std::setlocale(LC_ALL, nullptr)),
          m_variable(zvPlatform::environment("LC_ALL").empty() ? "LC_CTYPE" : "LC_ALL"),
          m_value(zvPlatform::environment(m_variable)) {
        const std::string characters = std::setlocale(LC_CTYPE, nullptr);
        if (characters != "C" && characters != "POSIX") {
            zvPlatform::setEnvironment(m_variable, characters.c_str());
        }
    }
    LocaleKeeper(const LocaleKeeper&) = delete;
    LocaleKeeper& operator=(const LocaleKeeper&) = delete;
    ~LocaleKeeper() {
        zvPlatform::setEnvironment(m_variable, m_value.c_str());
        std::setlocale(LC_ALL, m_locale.c_str());
    }

private:
    const std::string m_locale;
    const char* const m_variable;
    const std::string m_value;
};

// The JVM, of which a process has one, for threads that end. Not a member of AttachedThread: MinGW frees a
// thread's objects before it calls their destructors.
std::atomic<JavaVM*> attachedMachine{nullptr};

// A thread that was attached to the JVM has to be detached before it ends. Where the JVM's own threads are no
// more, it would wait for them.
struct AttachedThread {
    AttachedThread() = default;
    AttachedThread(const AttachedThread&) = delete;
    AttachedThread& operator=(const AttachedThread&) = delete;
    ~AttachedThread() {
        if (!zvPlatform::areOtherThreadsStopped()) {
            attachedMachine.load()->DetachCurrentThread();
        }
    }
};

template <typename Function>
bool findFunction(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(zvPlatform::findFunction(library, name));
    return function != nullptr;
}

// The output of sun.misc.Version, a class that Java 9 removed.
zvString printedVersion(const zvJniFrame& frame) {
    jobject const buffer = frame.create("java.io.ByteArrayOutputStream", "()V");
    jobject const stream = frame.create("java.io.PrintStream", "(Ljava/io/OutputStream;)V", buffer);
    frame.callStatic<void>("sun.misc.Version", "print", "(Ljava/io/PrintStream;)V", stream);
    return frame.describe(buffer);
}

zvString versionFromProperties(const zvJniFrame& frame) {
    zvTextBuilder text;
    for (const char* const property : versionProperties) {
        jobject const value =
            frame.callStatic<jobject>("java.lang.System", "getProperty",
                                      "(Ljava/lang/String;)Ljava/lang/String;", frame.toJava(property));
        text.append(text.empty() ? "" : "\n").append(property).append("=").append(frame.toText(value));
    }
    return text.toString();
}

// The methods of an exception may throw themselves: the text is empty then.
template <typename Ask>
zvString textOrNone(Ask ask) {
    try {
        return ask();
    } catch (const zvJavaThrown&) {
        return {};
    }
}

}  // namespace

std::unique_ptr<zvC2JBridge> zvC2JBridge::m_pBridge;
std::string zvC2JBridge::m_searchedPlaces;
std::vector<std::string> zvC2JBridge::m_options;
void (*zvC2JBridge::m_pEndObserver)() = nullptr;

zvC2JBridge* zvC2JBridge::getInstance() {
    if (m_pBridge == nullptr) {
        std::unique_ptr<zvC2JBridge> bridge(new zvC2JBridge);
        if (bridge->initialize()) {
            m_pBridge = std::move(bridge);
        }
    }
    return m_pBridge.get();
}

void zvC2JBridge::destroyInstance() {
    if (m_pBridge != nullptr && !m_pBridge->m_bIsAdopted) {
        m_pBridge->m_pMachine->DestroyJavaVM();
        m_pBridge.reset();
    }
}

JNIEnv* zvC2JBridge::getEnv() const {
    void* env = nullptr;
    if (m_pMachine->GetEnv(&env, jniVersion) == JNI_EDETACHED &&
        m_pMachine->AttachCurrentThread(&env, nullptr) == JNI_OK) {
        attachedMachine = m_pMachine;
        thread_local const AttachedThread thread;
        static_cast<void>(thread);
    }
    return static_cast<JNIEnv*>(env);
}

bool zvC2JBridge::initialize() {
    logger.info("Started initializing C2JBridge");
    if (!loadLibrary()) {
        logger.fatal("Failed to load the Java virtual machine");
        return false;
    }
    std::string classPath = zvPlatform::environment("CLASSPATH");
    if (classPath.empty()) {
        classPath = ".";
    }
    logger.debug("classpath=[", classPath.c_str(), "]");
    zvJvmOptionList options;
    options.addClassPath(zvPlatform::textForLibraries(classPath).c_str());
    for (const std::string& option : m_options) {
        options.add(zvPlatform::textForLibraries(option).c_str());
    }
    addEndHooks(options);
    if (!startMachine(options)) {
        logger.fatal("Failed to initialize the Java virtual machine");
        return false;
    }
    logger.info("Successfully initialized the Java virtual machine");
    logVersion();
    logger.info("Finished initializing C2JBridge");
    logger.debug("The library was looked for in ", m_searchedPlaces.c_str());
    if (m_bIsAdopted) {
        logger.info(
            "Using the Java virtual machine that already runs in this process, with its own class path");
    }
    return true;
}

bool zvC2JBridge::loadLibrary() {
    logger.info("Started loading Java virtual machine");
    const zvJvmLibrary library = zvJvmLibrary::load();
    m_searchedPlaces = library.tried;
    if (library.handle == nullptr) {
        logger.error("Error loading [", zvJvmLibrary::name, "]");
        for (const char* const hint : searchPathHints) {
            logger.error(hint);
        }
        return false;
    }
    m_pLibrary = library.handle;
    if (!findFunction(m_pLibrary, "JNI_CreateJavaVM", m_pCreateJavaVM) ||
        !findFunction(m_pLibrary, "JNI_GetDefaultJavaVMInitArgs", m_pGetDefaultJavaVMInitArgs)) {
        logger.error("Can't find JNI interfaces in [", zvJvmLibrary::name,
                     "]. Please note the information about JRE being used while reporting this error.");
        return false;
    }
    findFunction(m_pLibrary, "JNI_GetCreatedJavaVMs", m_pGetCreatedJavaVMs);
    logger.info("Successfully loaded Java virtual machine");
    return true;
}

bool zvC2JBridge::startMachine(zvJvmOptionList& options) {
    logger.info("Started initializing Java virtual machine");
    if (adoptMachine()) {
        return true;
    }
    const LocaleKeeper keeper;
    JavaVMInitArgs arguments{};
    arguments.version = jniVersion;
    arguments.nOptions = options.count();
    arguments.options = options.data();
    arguments.ignoreUnrecognized = JNI_FALSE;
    void* env = nullptr;
    return m_pCreateJavaVM(&m_pMachine, &env, &arguments) == JNI_OK;
}

void zvC2JBridge::addEndHooks(zvJvmOptionList& options) {
    if (m_pEndObserver != nullptr) {
        options.add("exit", reinterpret_cast<void*>(&atExit));
        options.add("abort", reinterpret_cast<void*>(&atAbort));
    }
}

void JNICALL zvC2JBridge::atExit(jint) { m_pEndObserver(); }

void JNICALL zvC2JBridge::atAbort() { m_pEndObserver(); }

bool zvC2JBridge::adoptMachine() {
    jsize machines = 0;
    if (m_pGetCreatedJavaVMs == nullptr || m_pGetCreatedJavaVMs(&m_pMachine, 1, &machines) != JNI_OK ||
        machines == 0 || getEnv() == nullptr) {
        return false;
    }
    m_bIsAdopted = true;
    return true;
}

void zvC2JBridge::logVersion() const {
    const zvJniFrame frame(*getEnv());
    zvString version = textOrNone([&] { return printedVersion(frame); });
    if (version.empty()) {
        version = textOrNone([&] { return versionFromProperties(frame); });
    }
    logger.info("\n", version, "\n");
}

zvException zvC2JBridge::toException(const zvJniFrame& frame, jthrowable exception) {
    zvException converted(exceptionMessage(frame, exception));
    const zvString trace = exceptionStackTrace(frame, exception);
    zvResult result;
    result.setMessage(trace.empty() ? converted.getMessage() : trace);
    converted.setResult(result);
    return converted;
}

zvString zvC2JBridge::exceptionMessage(const zvJniFrame& frame, jthrowable exception) {
    return textOrNone([&] {
        const zvString type = frame.describe(frame.env().GetObjectClass(exception));
        std::printf("Exception [%s]", zvCharString(type).data());
        return frame.toText(frame.call<jobject>(exception, "getMessage", "()Ljava/lang/String;"));
    });
}

zvString zvC2JBridge::exceptionStackTrace(const zvJniFrame& frame, jthrowable exception) {
    return textOrNone([&] {
        jobject const text = frame.create("java.io.StringWriter", "()V");
        jobject const writer = frame.create("java.io.PrintWriter", "(Ljava/io/Writer;)V", text);
        frame.call<void>(exception, "printStackTrace", "(Ljava/io/PrintWriter;)V", writer);
        return frame.describe(text);
    });
}
