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

}  // namespace

void zvFSNotices::receive(const zvJniFrame& frame) {
    static char name[] = "receive";
    static char signature[] = "(Ljava/lang/String;)V";
    try {
        frame.registerNative(noticesClass, {name, signature, reinterpret_cast<void*>(receiveNotice)});
    } catch (const zvJavaThrown&) {
        logger.debug("The Java client tells no notices");
    }
}

zvTransferObserver* zvFSNotices::setObserver(zvTransferObserver* observer) {
    return std::exchange(currentObserver, observer);
}
