#ifndef ZV_CONFIGURATION_PAGE_H
#define ZV_CONFIGURATION_PAGE_H

#include <string>

#include "zvCfgConfigManager.h"
#include "zvLifecyclePicture.h"

/// A configuration as one HTML page in UTF-8, self-contained: tables that a search field
/// filters, and the lifecycles as pictures. The fragment "#search=TEXT" of its address begins a search.
class zvConfigurationPage {
public:
    /// The title, a printable text, stands above the page. Without `picture`, which may be null, lifecycles
    /// are tables alone.
    zvConfigurationPage(const zvCfgConfigManager& configuration, const std::string& title,
                        const zvLifecyclePicture* picture);

    const std::string& html() const { return m_html; }

private:
    void addObjects(const zvCfgConfigManager& configuration);
    void addFiles(const zvCfgConfigManager& configuration);
    void addViews(const zvCfgConfigManager& configuration);
    void addLifecycles(const zvCfgConfigManager& configuration, const zvLifecyclePicture* picture);

    std::string m_html;
};

#endif
