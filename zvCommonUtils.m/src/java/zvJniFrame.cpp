#include "zvJniFrame.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace {

static_assert(std::is_same_v<jchar, wchar16>, "Java's characters are the library's");

// Enough for one method call and its conversions; not a limit.
constexpr jint localReferences = 16;

// RAII guard that frees a local reference before its frame does.
class LocalReference {
public:
    LocalReference(JNIEnv& env, jobject object) : m_env(env), m_pObject(object) {}
    LocalReference(const LocalReference&) = delete;
    LocalReference& operator=(const LocalReference&) = delete;
    ~LocalReference() { m_env.DeleteLocalRef(m_pObject); }

private:
    JNIEnv& m_env;
    jobject m_pObject;
};

}  // namespace

// Out of memory, the enclosing frame is used instead: the calls themselves will report the failure.
zvJniFrame::zvJniFrame(JNIEnv& env) : m_env(env), m_bPushed(env.PushLocalFrame(localReferences) == JNI_OK) {
    if (!m_bPushed) {
        m_env.ExceptionClear();
    }
}

zvJniFrame::~zvJniFrame() {
    if (m_bPushed) {
        m_env.PopLocalFrame(nullptr);
    }
}

zvMalloc::Array<char> zvJniFrame::jniClassName(const char* name) {
    const std::size_t size = std::strlen(name) + 1;
    zvMalloc::Array<char> copy = zvMalloc::allocate<char>(size);
    std::replace_copy(name, name + size, copy.get(), '.', '/');
    return copy;
}

void zvJniFrame::check() const {
    if (m_env.ExceptionCheck() == JNI_TRUE) {
        jthrowable const exception = m_env.ExceptionOccurred();
        m_env.ExceptionClear();
        throw zvJavaThrown{exception};
    }
}

jclass zvJniFrame::findClass(const char* name) const {
    const zvMalloc::Array<char> jniName = jniClassName(name);
    return checked([&] { return m_env.FindClass(jniName.get()); });
}

jmethodID zvJniFrame::method(jobject object, const char* name, const char* signature) const {
    if (object == nullptr) {
        const std::string reason = "Cannot invoke \"" + std::string(name) + "\" on null";
        m_env.ThrowNew(findClass("java.lang.NullPointerException"), reason.c_str());
        check();
    }
    jclass const type = m_env.GetObjectClass(object);
    const LocalReference reference(m_env, type);
    return checked([&] { return m_env.GetMethodID(type, name, signature); });
}

jmethodID zvJniFrame::findMethod(jobject object, const char* name, const char* signature) const {
    try {
        return method(object, name, signature);
    } catch (const zvJavaThrown&) {
        return nullptr;
    }
}

void zvJniFrame::registerNative(const char* className, const JNINativeMethod& method) const {
    jclass const type = findClass(className);
    checked([&] { return m_env.RegisterNatives(type, &method, 1); });
}

jstring zvJniFrame::toJava(const zvString& text) const {
    constexpr jchar none[] = {0};
    return checked([&] { return m_env.NewString(text.empty() ? none : text.data(), text.size()); });
}

jobject zvJniFrame::toJava(const zvStringList* texts) const {
    if (texts == nullptr) {
        return nullptr;
    }
    jobject const list = create("java.util.ArrayList", "()V");
    jmethodID const add = method(list, "add", "(Ljava/lang/Object;)Z");
    for (int i = 0; i < texts->numStrings(); ++i) {
        jstring const text = toJava(texts->getString(i));
        const LocalReference reference(m_env, text);
        call<jboolean>(list, add, text);
    }
    return list;
}

zvString zvJniFrame::toText(jobject string) const {
    if (string == nullptr) {
        return {};
    }
    const auto text = static_cast<jstring>(string);
    const jsize length = m_env.GetStringLength(text);
    std::vector<jchar> units(static_cast<std::size_t>(length));
    m_env.GetStringRegion(text, 0, length, units.data());
    return {units.data(), length};
}

zvString zvJniFrame::describe(jobject object) const {
    return toText(call<jobject>(object, "toString", "()Ljava/lang/String;"));
}

void zvJniFrame::appendTexts(jobjectArray strings, zvStringList& out) const {
    const jsize length = strings == nullptr ? 0 : m_env.GetArrayLength(strings);
    for (jsize i = 0; i < length; ++i) {
        jobject const string = checked([&] { return m_env.GetObjectArrayElement(strings, i); });
        const LocalReference reference(m_env, string);
        out.addString(toText(string));
    }
}
