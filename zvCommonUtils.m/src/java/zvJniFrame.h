#ifndef ZV_JNI_FRAME_H
#define ZV_JNI_FRAME_H

#include <jni.h>

#include <type_traits>

#include "zvMalloc.h"
#include "zvString.h"
#include "zvStringList.h"

/// A Java exception that propagates through native code: no longer pending, and valid as long as the frame
/// that it was thrown in.
struct zvJavaThrown {
    jthrowable exception;
};

/// A facade over JNI and an RAII guard of a local reference frame: the local references that its calls create
/// are freed with it. Every lookup and call is checked, and a Java exception is thrown as a zvJavaThrown.
///
/// Class names are dotted, method signatures are those of JNI. Calling a method on null is a
/// NullPointerException, as in Java.
class zvJniFrame {
public:
    explicit zvJniFrame(JNIEnv& env);
    zvJniFrame(const zvJniFrame&) = delete;
    zvJniFrame& operator=(const zvJniFrame&) = delete;
    ~zvJniFrame();

    JNIEnv& env() const { return m_env; }

    /// Converts a dotted class name to that of JNI, for example "java/util/List". Out of memory, it ends the
    /// process.
    static zvMalloc::Array<char> jniClassName(const char* name);

    jclass findClass(const char* name) const;
    jmethodID method(jobject object, const char* name, const char* signature) const;
    /// The method; null if the object has none of that name and signature, and for null.
    jmethodID findMethod(jobject object, const char* name, const char* signature) const;
    /// Makes a function the implementation of a static native method.
    void registerNative(const char* className, const JNINativeMethod& method) const;

    /// `Result` is void, jboolean or a reference type; an argument is a reference or a jint.
    template <typename Result, typename... Arguments>
    Result call(jobject object, jmethodID method, Arguments... arguments) const {
        const jvalue values[] = {toValue(arguments)..., jvalue{}};
        return checked([&] {
            if constexpr (std::is_void_v<Result>) {
                m_env.CallVoidMethodA(object, method, values);
            } else if constexpr (std::is_same_v<Result, jboolean>) {
                return m_env.CallBooleanMethodA(object, method, values);
            } else {
                return static_cast<Result>(m_env.CallObjectMethodA(object, method, values));
            }
        });
    }
    template <typename Result, typename... Arguments>
    Result call(jobject object, const char* name, const char* signature, Arguments... arguments) const {
        return call<Result>(object, method(object, name, signature), arguments...);
    }
    template <typename Result, typename... Arguments>
    Result callStatic(const char* className, const char* name, const char* signature,
                      Arguments... arguments) const {
        jclass const type = findClass(className);
        jmethodID const method = checked([&] { return m_env.GetStaticMethodID(type, name, signature); });
        const jvalue values[] = {toValue(arguments)..., jvalue{}};
        return checked([&] {
            if constexpr (std::is_void_v<Result>) {
                m_env.CallStaticVoidMethodA(type, method, values);
            } else {
                return static_cast<Result>(m_env.CallStaticObjectMethodA(type, method, values));
            }
        });
    }
    template <typename... Arguments>
    jobject create(const char* className, const char* signature, Arguments... arguments) const {
        jclass const type = findClass(className);
        jmethodID const constructor = checked([&] { return m_env.GetMethodID(type, "<init>", signature); });
        const jvalue values[] = {toValue(arguments)..., jvalue{}};
        return checked([&] { return m_env.NewObjectA(type, constructor, values); });
    }

    /// A Java string with the same UTF-16 code units.
    jstring toJava(const zvString& text) const;
    /// An ArrayList of the strings; null for a null list.
    jobject toJava(const zvStringList* texts) const;
    jint toJava(int number) const { return number; }
    /// The code units of a Java string up to the first U+0000; empty for null.
    zvString toText(jobject string) const;
    /// The result of toString().
    zvString describe(jobject object) const;
    /// Appends the elements of an array of strings to `out`; nothing for a null array.
    void appendTexts(jobjectArray strings, zvStringList& out) const;

private:
    static jvalue toValue(jobject object) {
        jvalue value;
        value.l = object;
        return value;
    }
    static jvalue toValue(jint number) {
        jvalue value;
        value.i = number;
        return value;
    }

    void check() const;

    template <typename Action>
    auto checked(Action action) const {
        if constexpr (std::is_void_v<decltype(action())>) {
            action();
            check();
        } else {
            const auto result = action();
            check();
            return result;
        }
    }

    JNIEnv& m_env;
    const bool m_bPushed;
};

#endif
