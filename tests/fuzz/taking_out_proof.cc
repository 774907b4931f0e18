#include "tests/fuzz/taking_out_checks.h"

#include <iostream>

int main()
{
    std::cout << orvane::testing::CheckAllPages(5) << " pages\n";
}
