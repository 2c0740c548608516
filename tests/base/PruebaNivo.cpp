#include "base/Nivo.h"
#include <gtest/gtest.h>
TEST(Nivo, Compila) { EXPECT_EQ(RoundNivo(0.294068, 2), 0.29); }
