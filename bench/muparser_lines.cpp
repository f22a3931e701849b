// muparser_lines: evaluates each line of standard input with muParser and writes its value. One that muParser does not
// know ends the program.
#include <muParser.h>

#include <cstdio>
#include <iostream>
#include <string>

int main() {
    std::ios::sync_with_stdio(false);
    mu::Parser parser;
    for (std::string line; std::getline(std::cin, line);) {
        try {
            parser.SetExpr(line);
            std::printf("%.9g\n", parser.Eval());
        } catch (const mu::Parser::exception_type& fault) {
            std::fprintf(stderr, "muparser_lines: %s\n", fault.GetMsg().c_str());
            return 1;
        }
    }
    return 0;
}
