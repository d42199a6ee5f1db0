#include "zvFSNotices.h"

#include <utility>

#include "zvLogSource.h"

namespace {

constexpr zvLogSource logger("zvCommonUtils.m/src/zvFSNotices");

constexpr char noticesClass[] = "com.vantorel.ep.products.fsclient.Notices";

zvTransferObserver* currentObserver = nullptr;

// Called by Java, through which no C++ exception may pass.
void JNICALL receiveNotice(JNIEnv* env, jclass, jstring text) {
    try {
        const zvString notice = zvJniFrame(*env).toText(text);
        logger.warn("", notice);
        if (currentObserver != nullptr) {
            currentObserver->notice(notice);
        }
    } catch (...) {
        // The operation is more important than its notice.
    }
}

jboolean JNICALL isCancelled(JNIEnv*, jclass) {
    try {
        return currentObserver != nullptr && currentObserver->isCancelled() ? JNI_TRUE : JNI_FALSE;
    } catch (...) {
        return JNI_FALSE;
    }
}

void JNICALL receiveProgress(JNIEnv* env, jclass, jstring file, jlong bytes, jlong total) {
    try {
        if (currentObserver != nullptr) {
            currentObserver->progress(zvJniFrame(*env).toText(file), bytes, total);
        }
    } catch (...) {
        // As above.
    }
}

}  // namespace

void zvFSNotices::receive(const zvJniFrame& frame) {
    static char receiveName[] = "receive";
    static char receiveSignature[] = "(Ljava/lang/String;)V";
    static char cancelledName[] = "isCancelled";
    static char cancelledSignature[] = "()Z";
    static char progressName[] = "receiveProgress";
    static char progressSignature[] = "(Ljava/lang/String;JJ)V";
    try {
        frame.registerNative(noticesClass,
                             {receiveName, receiveSignature, reinterpret_cast<void*>(receiveNotice)});
        frame.registerNative(noticesClass,
                             {cancelledName, cancelledSignature, reinterpret_cast<void*>(isCancelled)});
        frame.registerNative(noticesClass,
                             {progressName, progressSignature, reinterpret_cast<void*>(receiveProgress)});
    } catch (const zvJavaThrown&) {
        logger.debug("The Java client does not tell everything that happens");
    }
}

zvTransferObserver* zvFSNotices::setObserver(zvTransferObserver* observer) {
    return std::exchange(currentObserver, observer);
}
