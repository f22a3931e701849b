// write_help SOURCE TARGET SITE: writes the help of the folder SOURCE as HTML, and what the help compiler needs, to
// TARGET, and the pages for a web server to SITE.
#include <cstdio>
#include <exception>

#include "book.h"

int main(int count, char** arguments) {
    if (count != 4) {
        std::fputs("Usage: write_help SOURCE TARGET SITE\n", stderr);
        return 2;
    }
    try {
        const calquo::Book book(arguments[1]);
        book.write(arguments[2]);
        book.writeSite(arguments[3]);
        return 0;
    } catch (const calquo::MarkupFault& fault) {
        std::fprintf(stderr, "%s\n", fault.message.c_str());
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "write_help: %s\n", failure.what());
    }
    return 1;
}
