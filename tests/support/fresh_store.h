#pragma once

// What every test of a calculator starts from: an empty profile, an empty store, and a
// clock that stands still.

#include "core/clock.h"
#include "core/reading_store.h"
#include "core/runtime_failure.h"
#include "core/user_profile.h"

#include <gtest/gtest.h>

namespace modReadings {

class FreshStore : public ::testing::Test {
protected:
    FreshStore() {
        profile = {};
        store = {};
    }

    static void Born(std::u16string day, std::u16string month, std::u16string year) {
        profile.BirthDay = std::move(day);
        profile.BirthMonth = std::move(month);
        profile.BirthYear = std::move(year);
    }

    static void Named(std::u16string first, std::u16string middle, std::u16string last) {
        profile.FirstName = std::move(first);
        profile.MiddleName = std::move(middle);
        profile.LastName = std::move(last);
    }

    /// On the clock's day this person is 41, with Life Path 1, Destiny 9, Soul Urge 3 and
    /// Inner Dreams 6.
    static void OakRiver() {
        Named(u"OAK", u"", u"RIVER");
        Born(u"29", u"December", u"1985");
    }

    /// Monday, 16 November 2026, until a test sets another day.
    FixedClock clock{std::chrono::year(2026) / 11 / 16};
};

} // namespace modReadings
