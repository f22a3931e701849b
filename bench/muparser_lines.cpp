// muparser_lines: evaluates each line of standard input with muParser and writes its value, as calq does.
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
            std::printf("Error (%s)\n", fault.GetMsg().c_str());
        }
    }
    return 0;
}
