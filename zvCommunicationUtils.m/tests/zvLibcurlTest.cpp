#include <curl/curl.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "zvCommunicationTestSupport.h"
#include "zvHttpUtils.h"

namespace {

using zvRecordingLogger::lines;

class zvLibcurlTest : public zvCommunicationUtilsTest {};

// What this program's own curl_global_init, and the allocator that it gives libcurl, do.
bool refusesInitialization = false;
bool refusesMemory = false;
int allocations = 0;

void* allocateCleared(std::size_t count, std::size_t bytes) {
    ++allocations;
    return refusesMemory ? nullptr : std::calloc(count, bytes);
}

char* duplicate(const char* text) {
    const std::size_t bytes = std::strlen(text) + 1;
    void* const copy = std::malloc(bytes);
    return copy == nullptr ? nullptr : static_cast<char*>(std::memcpy(copy, text, bytes));
}

CURLcode initializeLibcurl(curl_calloc_callback allocator) {
    return curl_global_init_mem(CURL_GLOBAL_ALL, &std::malloc, &std::free, &std::realloc, &duplicate,
                                allocator);
}

}  // namespace

extern "C" CURLcode curl_global_init(long) {
    return refusesInitialization ? CURLE_FAILED_INIT : initializeLibcurl(&allocateCleared);
}

namespace {

TEST_F(zvLibcurlTest, LibcurlLivesAsLongAsTheLastUtilityOrCopy) {
    // An allocator is adopted by a libcurl that is not in use only.
    const auto isInUse = [] {
        EXPECT_EQ(initializeLibcurl(&std::calloc), CURLE_OK);
        allocations = 0;
        curl_easy_cleanup(curl_easy_init());
        curl_global_cleanup();
        return allocations > 0;
    };
    ASSERT_FALSE(isInUse());
    auto first = create();
    {
        zvHttpUtils copy(dynamic_cast<const zvHttpUtils&>(*first));
        const auto second = create();
        copy = dynamic_cast<const zvHttpUtils&>(*second);
        first.reset();
        EXPECT_TRUE(isInUse());
    }
    EXPECT_FALSE(isInUse());
}

TEST_F(zvLibcurlTest, ALibcurlThatCannotStartIsLogged) {
    refusesInitialization = true;
    auto utils = create();
    refusesInitialization = false;
    EXPECT_EQ(lines("error"),
              (std::vector<std::string>{"Following error occurred while initializing the LIBCURL library : "
                                        "\"2\" -Failed initialization"}));
    utils.reset();
    utils = create();
    zvRecordingLogger::reset();
    refusesMemory = true;
    const zvResult result = utils->request("http://127.0.0.1/", m_args, nullptr);
    refusesMemory = false;
    const std::string noHandle = "Error in getting an handle to curl-easy interface.";
    EXPECT_EQ(result.getResult(), -1);
    EXPECT_EQ(narrow(result.getMessage()), noHandle);
    ASSERT_EQ(lines().size(), 3u);
    EXPECT_EQ(lines()[1], "error: " + noHandle);
}

}  // namespace
