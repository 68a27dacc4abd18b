#pragma once

// The five pictures of a document as data and in words. All but that of the time are read from
// the store as a pass over the present profile has left it.

#include "report/document.h"

#include <chrono>
#include <string>

namespace modReadings {

/// "from age 30 to 38", "from age 54 on".
std::u16string InWords(const Ages &ages);

NamePicture PictureOfName();
ValuesPicture PictureOfValues();

/// Of a document that has its age and its topics. Marks the periods and pinnacles in force there.
LifePicture PictureOfLife(Document &document);

/// The years and months from those of `day` on. Leaves other years than that of `day` in the slots
/// of the cycles. Throws RuntimeFailure where BirthYear is no number.
TimePicture PictureOfTime(const UserProfile &person, std::chrono::year_month_day day);

PlanesPicture PictureOfPlanes();

} // namespace modReadings
