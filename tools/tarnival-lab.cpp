// The engine on a pipe: reads one command a line from standard input and writes one JSON object a line
// to standard output. For bug reports, bots, long runs and measurements; it opens no window and touches
// no one's settings or records.
#include <cstdio>
#include <iostream>
#include <string>

#include "tools/Lab.h"

int main() {
    std::ios::sync_with_stdio(false);
    Lab lab;
    std::string line;
    while (std::getline(std::cin, line)) {
        if (Lab::IsBlank(line)) continue;
        std::string answer = lab.Answer(line);
        answer += '\n';
        // Flushed line by line: the reader waits for the answer before it writes again.
        if (std::fwrite(answer.data(), 1, answer.size(), stdout) != answer.size() ||
            std::fflush(stdout) != 0) {
            return 1;
        }
    }
    return 0;
}
