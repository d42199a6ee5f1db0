// Counts allocations, as a deterministic measure of the work.
#include <cstdlib>
#include <new>
#include <sstream>

#include "zvCfgObjectList.h"
#include "zvConfigurationTestSupport.h"

namespace {

std::size_t allocations = 0;

}  // namespace

void* operator new(std::size_t size) {
    ++allocations;
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++allocations;
    return std::malloc(size == 0 ? 1 : size);
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

using zvCfgGrowthTest = zvConfigurationTest;

constexpr int attributesOfAnObject = 20;

std::string objects(int count) {
    std::ostringstream attributes;
    for (int i = 0; i < attributesOfAnObject; ++i) {
        attributes << "<Attribute LocalName='local" << i << "' RemoteName='remote" << i << "'/>";
    }
    std::ostringstream all;
    for (int i = 0; i < count; ++i) {
        all << "<Object LocalCustType='T" << i << "'>" << attributes.str()
            << "<MappingRule>{state} = 'RELEASED' AND {rev} > '2'</MappingRule></Object>";
    }
    return all.str();
}

TEST_F(zvCfgGrowthTest, ALargeConfigurationTakesItsShareOfTheWork) {
    const auto cost = [](int count) {
        const std::string content = objects(count);
        const std::size_t before = allocations;
        EXPECT_TRUE(parseObjects(content).isOk());
        return static_cast<double>(allocations - before) / count;
    };
    const double small = cost(500);
    zvCfgConfigManager::destroyCfgConfigManager();
    const double large = cost(5000);
    EXPECT_LT(large, small * 1.02);
    EXPECT_EQ(manager().numObjects(), 5000);
    EXPECT_EQ(manager().getObjectsByLocalType("T4999")->get(0)->numAttributes(), attributesOfAnObject);
}

}  // namespace
