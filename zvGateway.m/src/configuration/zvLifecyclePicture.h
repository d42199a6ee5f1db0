#ifndef ZV_LIFECYCLE_PICTURE_H
#define ZV_LIFECYCLE_PICTURE_H

#include <memory>
#include <string>

#include "zvCfgLcmGraph.h"

/// Draws lifecycles: states as boxes, promotions as plain and demotions as dashed arrows.
///
/// What draws is loaded when it is asked for, so that an event does not start with libraries that it never
/// calls.
class zvLifecyclePicture {
public:
    zvLifecyclePicture() = default;
    zvLifecyclePicture(const zvLifecyclePicture&) = delete;
    zvLifecyclePicture& operator=(const zvLifecyclePicture&) = delete;
    virtual ~zvLifecyclePicture() = default;

    /// Null, with the reason, when what draws, or Graphviz, on which it stands, is not there.
    static std::unique_ptr<zvLifecyclePicture> load(std::string& reason);

    /// The "svg" element in UTF-8, to stand in an HTML page. Every id in it begins with `id`. Empty for a
    /// lifecycle that is too large to be read as a picture, or that cannot be laid out.
    virtual std::string svg(const zvCfgLcmGraph& lifecycle, const std::string& id) const = 0;
};

#endif
