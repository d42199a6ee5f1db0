#ifndef ZV_LIFECYCLE_PICTURE_H
#define ZV_LIFECYCLE_PICTURE_H

#include <memory>
#include <string>

#include "zvCfgLcmGraph.h"

/// Draws lifecycles with Graphviz: states as boxes, promotions as plain and demotions as dashed arrows.
class zvLifecyclePicture {
public:
    zvLifecyclePicture();
    zvLifecyclePicture(const zvLifecyclePicture&) = delete;
    zvLifecyclePicture& operator=(const zvLifecyclePicture&) = delete;
    ~zvLifecyclePicture();

    /// The "svg" element in UTF-8, to stand in an HTML page. Every id in it begins with `id`. Empty for a
    /// lifecycle that is too large to be read as a picture, or that Graphviz cannot lay out.
    std::string svg(const zvCfgLcmGraph& lifecycle, const std::string& id) const;

private:
    struct Context;
    std::unique_ptr<Context> m_pContext;
};

#endif
