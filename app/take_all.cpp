#include "app/take_all.h"

#include <exception>

void TakeAll(std::initializer_list<std::function<void()>> steps) {
    std::exception_ptr fault;
    for (const auto& step : steps) {
        try {
            step();
        } catch (...) {
            if (!fault) fault = std::current_exception();
        }
    }
    if (fault) std::rethrow_exception(fault);
}
