#ifndef ZV_CONFIGURATION_PAGE_H
#define ZV_CONFIGURATION_PAGE_H

#include <string>

#include "zvCfgConfigManager.h"
#include "zvLifecyclePicture.h"
#include "zvPage.h"

/// A configuration as one HTML page: a group with an anchor for each object, file type, collection of views
/// and lifecycle, which a search field filters, and the lifecycles as pictures.
class zvConfigurationPage {
public:
    /// Without `picture`, which may be null, lifecycles are tables alone.
    zvConfigurationPage(const zvCfgConfigManager& configuration, const zvString& title,
                        const zvLifecyclePicture* picture);

    const std::string& html() const { return m_html; }

private:
    void addObjects(const zvCfgConfigManager& configuration);
    void addObject(const zvCfgObject& object);
    void addFiles(const zvCfgConfigManager& configuration);
    void addViews(const zvCfgConfigManager& configuration);
    void addLifecycles(const zvCfgConfigManager& configuration, const zvLifecyclePicture* picture);

    std::string m_html;
    zvPageAnchors m_anchors;
};

#endif
