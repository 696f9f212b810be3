#include "panels/booklet_watermark/TestFonts.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    kesta::test::UseTestFonts();
    return RUN_ALL_TESTS();
}
