#ifndef ZV_CONFIGURATION_LISTING_H
#define ZV_CONFIGURATION_LISTING_H

#include "zvCfgConfigManager.h"

/// A configuration as text, on standard output.
class zvConfigurationListing {
public:
    explicit zvConfigurationListing(const zvCfgConfigManager& configuration)
        : m_configuration(configuration) {}

    void print() const;

private:
    void printObjects() const;
    void printFiles() const;
    void printViews() const;
    void printLifecycles() const;

    const zvCfgConfigManager& m_configuration;
};

#endif
