#ifndef ZV_CONFIGURATION_TEST_SUPPORT_H
#define ZV_CONFIGURATION_TEST_SUPPORT_H

#include <string>
#include <vector>

#include "zvCfgConfigManager.h"
#include "zvCfgLcmState.h"
#include "zvCfgMgrXmlParser.h"
#include "zvCfgTransitionPath.h"
#include "zvCfgTransitionPathList.h"
#include "zvRecordingLogger.h"
#include "zvTestSupport.h"

using Lines = std::vector<std::string>;

/// A fixture with a new configuration manager.
class zvConfigurationTest : public zvLoggedTest {
protected:
    ~zvConfigurationTest() override { zvCfgConfigManager::destroyCfgConfigManager(); }

    static zvCfgConfigManager& manager() { return *zvCfgConfigManager::getCfgConfigManager(); }

    static zvResult parse(const std::string& content) {
        zvRecordingLogger::reset();
        return zvCfgMgrXmlParser().parse(
            ("<CustomizationConfig>" + content + "</CustomizationConfig>").c_str(), false);
    }

    static zvResult parseLifecycle(const std::string& content) {
        return parse("<LifecycleConfig><Lifecycle ObjectType='T'>" + content +
                     "</Lifecycle></LifecycleConfig>");
    }

    static zvResult parseObjects(const std::string& objects) {
        return parse("<ObjectConfig>" + objects + "</ObjectConfig>");
    }

    // All paths from one state to another, for example "A>B>C".
    static Lines ways(const char* from, const char* to, const char* type, const char* selector) {
        zvCfgTransitionPathList paths;
        const bool any = manager().getTransitionPaths(from, to, type, selector, paths);
        EXPECT_EQ(any, paths.size() > 0);
        Lines all;
        for (int i = 0; i < paths.size(); ++i) {
            std::string way;
            for (int state = 0; state <= paths.get(i)->size(); ++state) {
                way += (state == 0 ? "" : ">") + narrow(paths.get(i)->getStateAt(state)->getLocalName());
            }
            all.push_back(way);
        }
        return all;
    }
};

/// Counts its destructor calls.
template <class Base>
class Counted : public Base {
public:
    explicit Counted(int& deleted) : m_deleted(deleted) {}
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    ~Counted() override { ++m_deleted; }

private:
    int& m_deleted;
};

#endif
