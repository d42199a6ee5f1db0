#include <gtest/gtest.h>

#include "zvPlatform.h"

int main(int argc, char** argv) {
    zvPlatform::adoptUserLocale();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
