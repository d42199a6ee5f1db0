#ifndef ZV_FAULTY_MEMORY_H
#define ZV_FAULTY_MEMORY_H

#include <gtest/gtest.h>

#include <new>

/// Fault injection: replaces the operator new of programs that link this, so that any allocation can fail.
namespace zvFaultyMemory {

/// Sets the number of allocations that succeed before all others fail; negative: none fails.
void allow(int allocations);
/// Sets the number of allocations that succeed before a single one fails.
void failOnceAfter(int allocations);
/// Whether an allocation has failed since allow() or failOnceAfter().
bool hasFailed();
/// The number of live allocations.
long living();

/// Calls `attempt` once for each of its allocations, with that one and all later ones failing, and once
/// without a fault. Each time `make` creates the object before and `check(object, faultless)` verifies it
/// afterwards. `attempt` may throw only std::bad_alloc and must not leak.
template <typename Make, typename Attempt, typename Check>
void forEveryFault(Make make, Attempt attempt, Check check) {
    bool faultless = false;
    for (int allowed = 0; !faultless; ++allowed) {
        const long before = living();
        {
            auto object = make();
            allow(allowed);
            try {
                attempt(object);
            } catch (const std::bad_alloc&) {
                EXPECT_TRUE(hasFailed());
            } catch (...) {
                ADD_FAILURE() << "something else than std::bad_alloc after " << allowed << " allocations";
            }
            faultless = !hasFailed();
            allow(-1);
            check(object, faultless);
        }
        EXPECT_EQ(living(), before) << "a leak after " << allowed << " allocations";
    }
}

}  // namespace zvFaultyMemory

#endif
