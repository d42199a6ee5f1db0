#ifndef ZV_CONFIGURATION_PAGE_H
#define ZV_CONFIGURATION_PAGE_H

#include <string>
#include <vector>

#include "zvCfgConfigManager.h"
#include "zvCoverageMarks.h"
#include "zvLifecyclePicture.h"
#include "zvPage.h"
#include "zvTestedCases.h"

/// A configuration as one HTML page: a group with an anchor for each object, file type, collection of views
/// and lifecycle, which a search field filters, and the lifecycles as pictures.
class zvConfigurationPage {
public:
    /// Without `picture`, which may be null, lifecycles are tables alone. `cases`, which may be null, have a
    /// section of their own, and what they do not reach is marked.
    zvConfigurationPage(const zvCfgConfigManager& configuration, const zvString& title,
                        const zvLifecyclePicture* picture, const zvTestedCases* cases);

    const std::string& html() const { return m_html; }

private:
    std::vector<const char*> columns(std::vector<const char*> names) const;
    std::string ruleOf(const zvCfgObject& object) const;
    std::string attributeRow(const zvCfgAttribute& attribute) const;
    std::string extensionRow(const zvCfgFileExtension& extension) const;
    std::string stateRow(const zvCfgLcmState& state) const;
    void addObjects(const zvCfgConfigManager& configuration);
    void addObject(const zvCfgObject& object);
    void addFiles(const zvCfgConfigManager& configuration);
    void addViews(const zvCfgConfigManager& configuration);
    void addLifecycles(const zvCfgConfigManager& configuration, const zvLifecyclePicture* picture);

    const zvTestedCases* m_pCases;
    const zvCoverageMarks m_marks;
    std::string m_html;
    zvPageAnchors m_anchors;
};

#endif
