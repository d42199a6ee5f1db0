// A fake jvm.dll for the tests that records the calls.
#include <jni.h>

#include <algorithm>
#include <deque>
#include <string>

namespace {

// A class, an object or a string; its address is the reference.
struct Thing {
    std::u16string text;
};

struct Method {
    std::string name;
    std::string signature;
};

std::string calls;
std::deque<Thing> things;
std::deque<Method> methods;

void record(const std::string& call) { calls += call + '\n'; }

template <typename Reference>
Reference reference(const std::u16string& text) {
    things.push_back({text});
    return reinterpret_cast<Reference>(&things.back());
}

jmethodID identifier(const char* kind, const char* name, const char* signature) {
    record(std::string(kind) + ' ' + name + signature);
    methods.push_back({name, signature});
    return reinterpret_cast<jmethodID>(&methods.back());
}

std::string textOf(jobject object) {
    const auto& text = reinterpret_cast<const Thing*>(object)->text;
    return {text.begin(), text.end()};
}

// Records a call with its string and number arguments.
void recordCall(const char* kind, jmethodID id, const jvalue* arguments) {
    const auto& [name, signature] = *reinterpret_cast<const Method*>(id);
    std::string call = std::string(kind) + ' ' + name;
    for (std::size_t at = 1; signature[at] != ')'; ++at, ++arguments) {
        if (signature[at] == 'I') {
            call += ' ' + std::to_string(arguments->i);
        } else {
            const std::size_t end = signature.find(';', at);
            const bool isText = signature.substr(at, end - at) == "Ljava/lang/String";
            call += ' ' + (isText ? textOf(arguments->l) : "object");
            at = end;
        }
    }
    record(call);
}

jint JNICALL pushLocalFrame(JNIEnv*, jint) { return JNI_OK; }
jobject JNICALL popLocalFrame(JNIEnv*, jobject result) { return result; }
void JNICALL deleteReference(JNIEnv*, jobject) {}
jobject JNICALL newGlobalReference(JNIEnv*, jobject object) { return object; }
jboolean JNICALL exceptionCheck(JNIEnv*) { return JNI_FALSE; }
jclass JNICALL getObjectClass(JNIEnv*, jobject object) { return reinterpret_cast<jclass>(object); }

jclass JNICALL findClass(JNIEnv*, const char* name) {
    record(std::string("FindClass ") + name);
    return reference<jclass>(u"class");
}

jmethodID JNICALL getMethod(JNIEnv*, jclass, const char* name, const char* signature) {
    return identifier("GetMethodID", name, signature);
}

jmethodID JNICALL getStaticMethod(JNIEnv*, jclass, const char* name, const char* signature) {
    return identifier("GetStaticMethodID", name, signature);
}

jobject JNICALL newObject(JNIEnv*, jclass, jmethodID id, const jvalue* arguments) {
    recordCall("NewObject", id, arguments);
    return reference<jobject>(u"object");
}

jobject JNICALL callObject(JNIEnv*, jobject, jmethodID id, const jvalue* arguments) {
    recordCall("CallObjectMethod", id, arguments);
    return reference<jobject>(u"fake");
}

jboolean JNICALL callBoolean(JNIEnv*, jobject, jmethodID id, const jvalue* arguments) {
    recordCall("CallBooleanMethod", id, arguments);
    return JNI_TRUE;
}

void JNICALL callVoid(JNIEnv*, jobject, jmethodID id, const jvalue* arguments) {
    recordCall("CallVoidMethod", id, arguments);
}

jobject JNICALL callStaticObject(JNIEnv*, jclass, jmethodID id, const jvalue* arguments) {
    recordCall("CallStaticObjectMethod", id, arguments);
    return reference<jobject>(u"fake");
}

void JNICALL callStaticVoid(JNIEnv*, jclass, jmethodID id, const jvalue* arguments) {
    recordCall("CallStaticVoidMethod", id, arguments);
}

jint JNICALL registerNatives(JNIEnv*, jclass, const JNINativeMethod* natives, jint count) {
    for (jint i = 0; i < count; ++i) {
        record(std::string("RegisterNatives ") + natives[i].name + natives[i].signature);
    }
    return JNI_OK;
}

jstring JNICALL newString(JNIEnv*, const jchar* units, jsize length) {
    return reference<jstring>(std::u16string(units, units + length));
}

jsize JNICALL stringLength(JNIEnv*, jstring string) {
    return static_cast<jsize>(reinterpret_cast<const Thing*>(string)->text.size());
}

void JNICALL stringRegion(JNIEnv*, jstring string, jsize start, jsize length, jchar* out) {
    const auto& text = reinterpret_cast<const Thing*>(string)->text;
    std::copy_n(text.begin() + start, length, out);
}

JNINativeInterface_ environmentFunctions() {
    JNINativeInterface_ functions{};
    functions.PushLocalFrame = &pushLocalFrame;
    functions.PopLocalFrame = &popLocalFrame;
    functions.DeleteLocalRef = &deleteReference;
    functions.DeleteGlobalRef = &deleteReference;
    functions.NewGlobalRef = &newGlobalReference;
    functions.ExceptionCheck = &exceptionCheck;
    functions.GetObjectClass = &getObjectClass;
    functions.FindClass = &findClass;
    functions.GetMethodID = &getMethod;
    functions.GetStaticMethodID = &getStaticMethod;
    functions.NewObjectA = &newObject;
    functions.CallObjectMethodA = &callObject;
    functions.CallBooleanMethodA = &callBoolean;
    functions.CallVoidMethodA = &callVoid;
    functions.CallStaticObjectMethodA = &callStaticObject;
    functions.CallStaticVoidMethodA = &callStaticVoid;
    functions.RegisterNatives = &registerNatives;
    functions.NewString = &newString;
    functions.GetStringLength = &stringLength;
    functions.GetStringRegion = &stringRegion;
    return functions;
}

JNINativeInterface_ functionsOfEnvironment = environmentFunctions();
JNIEnv environment{&functionsOfEnvironment};

jint JNICALL getEnvironment(JavaVM*, void** env, jint) {
    *env = &environment;
    return JNI_OK;
}

JNIInvokeInterface_ machineFunctions() {
    JNIInvokeInterface_ functions{};
    functions.GetEnv = &getEnvironment;
    return functions;
}

JNIInvokeInterface_ functionsOfMachine = machineFunctions();
JavaVM machine{&functionsOfMachine};

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL JNI_GetDefaultJavaVMInitArgs(void*) { return JNI_OK; }

JNIEXPORT jint JNICALL JNI_GetCreatedJavaVMs(JavaVM**, jsize, jsize* count) {
    *count = 0;
    return JNI_OK;
}

JNIEXPORT jint JNICALL JNI_CreateJavaVM(JavaVM** vm, void** env, void* arguments) {
    const auto& args = *static_cast<const JavaVMInitArgs*>(arguments);
    record("JNI_CreateJavaVM version " + std::to_string(args.version));
    for (jint i = 0; i < args.nOptions; ++i) {
        record(args.options[i].optionString);
    }
    *vm = &machine;
    *env = &environment;
    return JNI_OK;
}

/// The calls since the last invocation, one per line.
JNIEXPORT const char* takeRecordedCalls() {
    static std::string taken;
    taken.swap(calls);
    calls.clear();
    return taken.c_str();
}
}
