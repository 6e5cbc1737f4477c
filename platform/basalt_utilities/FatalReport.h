#pragma once

/// Ends the program when it cannot start: formats the message as printf does into a buffer of 2040
/// bytes (a longer one is cut), writes it to the log, and throws `std::runtime_error` with the same
/// text, which nothing in the program handles.
[[noreturn]] void fatal_report(const char* format, ...) __attribute__((format(printf, 1, 2)));
