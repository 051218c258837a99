#pragma once

#include "common/error.h"
#include "common/locales.h"
#include "common/values/convert.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace brx {

/// The number of the error that `body` throws; 0 when it throws none.
template <class Body> std::int32_t error_number(Body&& body) {
    try {
        body();
        return 0;
    } catch (const Error& error) {
        return error.number();
    }
}

/// `expression` throws the error of this number.
#define EXPECT_ERROR(number, expression)                                                                     \
    EXPECT_EQ(number, error_number([&] { static_cast<void>(expression); })) << #expression

inline const Locale us;
inline const Locale& de = checks::locale_of_germany();
inline const Locale& fr = checks::locale_of_france();

} // namespace brx
