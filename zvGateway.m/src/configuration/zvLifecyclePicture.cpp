#include "zvLifecyclePicture.h"

#include "zvCommonUtils.h"
#include "zvDeliveredFile.h"

std::unique_ptr<zvLifecyclePicture> zvLifecyclePicture::load(std::string& reason) {
    const std::string path =
        findDeliveredFile("../" ZV_MODULE_FOLDER "/zvGraphvizPicture.so", "zvGraphvizPicture.so");
    using Create = zvLifecyclePicture* (*)();
    const auto create = path.empty() ? nullptr
                                     : reinterpret_cast<Create>(zvCommonUtils::getFunctionPtr(
                                           path.c_str(), "zvCreateLifecyclePicture"));
    reason = create == nullptr ? "zvGraphvizPicture.so cannot be loaded" : "";
    return std::unique_ptr<zvLifecyclePicture>(create == nullptr ? nullptr : create());
}
