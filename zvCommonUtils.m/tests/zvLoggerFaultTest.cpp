#include "zvCommonUtils.h"
#include "zvDebugLogger.h"
#include "zvFaultyMemory.h"
#include "zvLogSource.h"
#include "zvLogger.h"
#include "zvRecordingLogger.h"
#include "zvTestSupport.h"

namespace {

using Lines = std::vector<std::string>;

constexpr zvLogSource source("modules/zvSource.cpp");

class zvLoggerFaultTest : public zvLoggedTest {
protected:
    // Lets each allocation of `action` fail once, alone and then together with all later ones. Nothing may
    // escape and no part of a path may be handed to the logging library; afterwards the same has to write its
    // line.
    void withEveryFault(void (*action)(), const std::string& loggerName, const std::string& line) const {
        for (void (*const fail)(int) : {&zvFaultyMemory::failOnceAfter, &zvFaultyMemory::allow}) {
            bool faultless = false;
            for (int allowed = 0; !faultless; ++allowed) {
                start();
                fail(allowed);
                EXPECT_NO_THROW(action()) << allowed;
                faultless = !zvFaultyMemory::hasFailed();
                zvFaultyMemory::allow(-1);
                expectWholeTexts(line);
                action();
                ASSERT_FALSE(zvRecordingLogger::events().empty()) << allowed;
                EXPECT_EQ(zvRecordingLogger::events().back().message, line) << allowed;
                EXPECT_EQ(zvRecordingLogger::events().back().loggerName, loggerName) << allowed;
                expectWholeTexts(line);
            }
        }
    }

private:
    static void start() {
        zvLogger::destroyInstance();
        zvRecordingLogger::reset();
    }

    void expectWholeTexts(const std::string& line) const {
        for (const std::string& path : zvRecordingLogger::configurations()) {
            EXPECT_EQ(path, m_folder.path().string() + "\\config\\log4cxx.xml");
        }
        for (const zvRecordingLogger::Event& event : zvRecordingLogger::events()) {
            EXPECT_EQ(event.message, line);
        }
    }
};

constexpr char processLogger[] = "com.qrsl.products.lkbridge.product";
const zvString message(u"a message of some length \u20AC");

TEST_F(zvLoggerFaultTest, ALogCallFailsQuietlyAndTheNextOneWrites) {
    withEveryFault(
        [] {
            zvLogger* const logger = zvLogger::getInstance();
            if (logger != nullptr) {
                logger->logError(message, "modules/zvCaller.cpp", 7);
            }
        },
        processLogger, "zvCaller.cpp[7] " + narrow(message));
    withEveryFault(
        [] {
            source.error({"Error in opening file : \"", 12}, message, "\", ", 345);
        },
        processLogger, "zvSource.cpp[12] Error in opening file : \"" + narrow(message) + "\", 345");
}

// Each call needs a name of its own, since an instance stays.
TEST_F(zvLoggerFaultTest, ADebugLoggerIsCreatedWholeOrAtALaterCall) {
    bool faultless = false;
    for (int allowed = 0; !faultless; ++allowed) {
        const std::string name = "a logger of the caller's own, number " + std::to_string(allowed);
        const zvString wide(name.c_str());
        zvRecordingLogger::reset();
        zvFaultyMemory::failOnceAfter(allowed);
        EXPECT_NO_THROW(zvDebugLogger::getInstance(wide)) << allowed;
        faultless = !zvFaultyMemory::hasFailed();
        zvFaultyMemory::allow(-1);
        zvDebugLogger* const logger = zvDebugLogger::getInstance(wide);
        ASSERT_NE(logger, nullptr) << allowed;
        logger->logMsg(message, nullptr, 0);
        ASSERT_FALSE(zvRecordingLogger::events().empty()) << allowed;
        EXPECT_EQ(zvRecordingLogger::events().back().loggerName, name);
        EXPECT_EQ(zvRecordingLogger::events().back().message, narrow(message));
        zvDebugLogger::destroyInstance(wide);
    }
}

}  // namespace
