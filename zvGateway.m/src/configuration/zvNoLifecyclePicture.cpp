#include "zvLifecyclePicture.h"

// The system has no Graphviz to build with.
std::unique_ptr<zvLifecyclePicture> zvLifecyclePicture::load(std::string& reason) {
    reason = "Graphviz draws them, which this program is built without on Windows";
    return nullptr;
}
