#include "zvJavaMachine.h"

#include "zvC2JBridge.h"
#include "zvCharString.h"
#include "zvJvmLibrary.h"
#include "zvPlatform.h"
#include "zvTextBuilder.h"

namespace {

zvResult succeeded(const zvString& text) {
    zvResult result(0);
    result.setMessage(text);
    return result;
}

zvResult failed(const zvString& reason, const zvString& detail = {}) {
    zvResult result;
    result.setMessage(reason);
    result.setAdditionalInformation(detail);
    return result;
}

zvString property(const zvJniFrame& frame, const char* name) {
    return frame.toText(frame.callStatic<jobject>("java.lang.System", "getProperty",
                                                  "(Ljava/lang/String;)Ljava/lang/String;",
                                                  frame.toJava(zvString(name))));
}

// Runs `action`; an exception of Java is the failure's reason.
template <typename Action>
zvResult attempt(Action action) {
    zvC2JBridge* const bridge = zvC2JBridge::getInstance();
    JNIEnv* const env = bridge == nullptr ? nullptr : bridge->getEnv();
    if (env == nullptr) {
        return failed("no Java virtual machine can be started",
                      zvTextBuilder::concat("it was looked for in ", zvC2JBridge::searchedPlaces()));
    }
    const zvJniFrame frame(*env);
    try {
        return succeeded(action(frame));
    } catch (const zvJavaThrown& thrown) {
        return failed(frame.describe(thrown.exception));
    }
}

}  // namespace

zvResult zvJavaMachine::start() {
    return attempt([](const zvJniFrame& frame) {
        return zvTextBuilder::concat(property(frame, "java.runtime.name"), " ",
                                     property(frame, "java.runtime.version"), " in ",
                                     property(frame, "java.home"));
    });
}

zvString zvJavaMachine::library() {
    void* const handle = zvJvmLibrary::load().handle;
    return zvPlatform::libraryOf(zvPlatform::findFunction(handle, "JNI_CreateJavaVM")).c_str();
}

void zvJavaMachine::end() { zvC2JBridge::destroyInstance(); }

zvResult zvJavaMachine::findClass(const zvString& name) {
    return attempt([&name](const zvJniFrame& frame) {
        jobject const type = frame.findClass(zvCharString(name).data());
        jobject const domain =
            frame.call<jobject>(type, "getProtectionDomain", "()Ljava/security/ProtectionDomain;");
        jobject const source = frame.call<jobject>(domain, "getCodeSource", "()Ljava/security/CodeSource;");
        jobject const url = frame.call<jobject>(source, "getLocation", "()Ljava/net/URL;");
        jobject const uri = frame.call<jobject>(url, "toURI", "()Ljava/net/URI;");
        return frame.describe(frame.create("java.io.File", "(Ljava/net/URI;)V", uri));
    });
}
