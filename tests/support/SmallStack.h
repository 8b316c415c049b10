// Code on a thread whose stack is as small as one of the application's may be.
#pragma once

#include <pthread.h>

#include <cstddef>
#include <functional>
#include <stdexcept>

namespace rux::test {

inline void OnSmallStack(std::size_t bytes, std::function<void()> action) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, bytes);
    pthread_t thread{};
    const auto enter = [](void* run) {
        (*static_cast<std::function<void()>*>(run))();
        return run;
    };
    if (pthread_create(&thread, &attributes, enter, &action) != 0) throw std::runtime_error("no thread");
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

}  // namespace rux::test
