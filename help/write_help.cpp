// write_help SOURCE TARGET: writes the help of the folder SOURCE as HTML, and what the help compiler needs, to TARGET.
#include <cstdio>
#include <exception>

#include "book.h"

int main(int count, char** arguments) {
    if (count != 3) {
        std::fputs("Usage: write_help SOURCE TARGET\n", stderr);
        return 2;
    }
    try {
        calquo::Book(arguments[1]).write(arguments[2]);
        return 0;
    } catch (const calquo::MarkupFault& fault) {
        std::fprintf(stderr, "%s\n", fault.message.c_str());
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "write_help: %s\n", failure.what());
    }
    return 1;
}
