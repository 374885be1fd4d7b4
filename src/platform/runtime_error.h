// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace quorvane {

/// A run-time failure with its classic number: 5 invalid call, 6 overflow, 9 subscript out of
/// range, 13 type mismatch, 52 bad file number, 53 file not found, 55 file already open, 62 input
/// past the end of a file, 76 path not found, 282 no application answered, 340 no such control
/// element, 360 element already loaded, 32755 a dialog was cancelled.
struct RuntimeError : std::exception {
    explicit RuntimeError(int number);
    RuntimeError(int number, std::string description);
    const char* what() const noexcept override { return Description.c_str(); }

    int Number;
    std::string Description;
};

/// Throws a RuntimeError. The arrays' own checks call it, and stay so short that they cost next to
/// nothing.
[[noreturn]] void Raise(int number);

/// The usual wording for a number; "Application-defined or object-defined error" for an unknown
/// one.
const char* RuntimeErrorText(int number);

/// What a run-time failure does to the operation it happens in: Fatal lets it out to the
/// dispatcher, Ignore drops it, so that the statement is skipped and the next one runs.
enum class ErrorPolicy { Fatal, Ignore };

/// Runs one statement under `policy`. Under Ignore a RuntimeError is dropped and false comes back.
template <class Statement>
bool Attempt(ErrorPolicy policy, Statement&& statement) {
    if (policy == ErrorPolicy::Fatal) {
        std::forward<Statement>(statement)();
        return true;
    }
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

/// Runs one statement and drops its failure.
template <class Statement>
bool Attempt(Statement&& statement) {
    return Attempt(ErrorPolicy::Ignore, std::forward<Statement>(statement));
}

/// Computes a value under `policy`; under Ignore a failure gives `fallback` instead.
template <class Value, class Expression>
Value AttemptValue(ErrorPolicy policy, Value fallback, Expression&& expression) {
    Attempt(policy, [&] { fallback = std::forward<Expression>(expression)(); });
    return fallback;
}

}  // namespace quorvane
