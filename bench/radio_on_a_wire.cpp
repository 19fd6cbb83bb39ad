// A radio at the other end of a pseudo terminal, for programs that are measured from outside. Prints the device at the
// program's end, and answers there until its input ends.

#include <iostream>
#include <string>

#include "tests/peers/kenwood_radio.h"
#include "tests/peers/radio_cable.h"

int main() {
    tallyhut::KenwoodRadio radio;
    const tallyhut::RadioCable cable{[&radio](std::string_view bytes) { return radio.Hear(bytes); }};
    std::cout << cable.Path() << std::endl;
    std::string line;
    while (std::getline(std::cin, line)) {
    }
    return 0;
}
