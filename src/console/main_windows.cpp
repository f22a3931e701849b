// calq for Windows: its arguments come in UTF-16, in which nothing of them is lost.
#include <string>
#include <vector>

#include "console/calq.h"
#include "widgets/wide_text.h"

// Keeps the start-up code of the C library from taking "2*3" for a pattern of file names.
extern "C" {
int _dowildcard = 0;
}

int wmain(int count, wchar_t** arguments) {
    std::vector<std::string> texts;
    for (int index = 1; index < count; ++index) {
        texts.push_back(calquo::utf8Text(arguments[index]));
    }
    std::vector<const char*> pointers;
    pointers.reserve(texts.size());
    for (const std::string& text : texts) {
        pointers.push_back(text.c_str());
    }
    return calquo::runCalq(pointers);
}
