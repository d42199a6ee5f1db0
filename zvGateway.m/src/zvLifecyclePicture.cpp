#include "zvLifecyclePicture.h"

#include "zvDeliveredFile.h"
#include "zvPlatform.h"

std::unique_ptr<zvLifecyclePicture> zvLifecyclePicture::load() {
    const std::string path =
        zvDeliveredFile("../" ZV_MODULE_FOLDER "/zvGraphvizPicture.so", "zvGraphvizPicture.so");
    void* const library = path.empty() ? nullptr : zvPlatform::loadLibrary(path.c_str());
    using Create = zvLifecyclePicture* (*)();
    const auto create =
        reinterpret_cast<Create>(zvPlatform::findFunction(library, "zvCreateLifecyclePicture"));
    return std::unique_ptr<zvLifecyclePicture>(create == nullptr ? nullptr : create());
}
