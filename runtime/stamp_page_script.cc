#include "insertion/page_script.h"

#include <fstream>
#include <iterator>

/// Makes the page script's file: stamp_page_script VERSION BUNDLE FILE.
int main(int count, char** words)
{
    if (count != 4)
        return 2;
    std::ifstream bundle(words[2], std::ios::binary);
    const std::string script(std::istreambuf_iterator<char>(bundle), {});
    std::ofstream file(words[3], std::ios::binary);
    file << orvane::PageScriptFile(words[1], script);
    return bundle && file.flush() ? 0 : 1;
}
