// SPDX-License-Identifier: MIT
#include "platform/runtime_error.h"

namespace quorvane {

const char* RuntimeErrorText(int number) {
    switch (number) {
        case 5: return "Invalid procedure call or argument";
        case 6: return "Overflow";
        case 7: return "Out of memory";
        case 9: return "Subscript out of range";
        case 13: return "Type mismatch";
        case 14: return "Out of string space";
        case 51: return "Internal error";
        case 52: return "Bad file name or number";
        case 53: return "File not found";
        case 54: return "Bad file mode";
        case 55: return "File already open";
        case 57: return "Device I/O error";
        case 61: return "Disk full";
        case 62: return "Input past end of file";
        case 67: return "Too many files";
        case 70: return "Permission denied";
        case 75: return "Path/File access error";
        case 76: return "Path not found";
        case 91: return "Object variable not set";
        case 282: return "No foreign application responded to a DDE initiate";
        case 340: return "Control array element doesn't exist";
        case 360: return "Object already loaded";
        case 32755: return "Cancel was selected";
        default: return "Application-defined or object-defined error";
    }
}

RuntimeError::RuntimeError(int number) : Number(number), Description(RuntimeErrorText(number)) {}

RuntimeError::RuntimeError(int number, std::string description)
    : Number(number), Description(std::move(description)) {}

void Raise(int number) { throw RuntimeError(number); }

}  // namespace quorvane
