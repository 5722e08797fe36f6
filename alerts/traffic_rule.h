// The rules about too little and too much traffic, as they are stored.
#pragma once

#include <cstdint>

#include "settings/schema.h"

namespace alerts {

struct TrafficRule {
  settings::BooleanSetting downloaded;  // the rule watches this direction
  settings::BooleanSetting uploaded;
  settings::IntegerSetting bytes;    // the rule's threshold
  settings::IntegerSetting seconds;  // the rule reacts after so many scans in a row
  settings::BooleanSetting is_play;
  settings::TextSetting wave;
  settings::IntegerSetting action;  // a code of alerts/reactions.h
  settings::TextSetting message;
  // Returns whether the bytes of a scan qualify. An amount equal to the threshold qualifies for
  // both rules.
  bool (*qualifies)(std::int64_t amount, std::int64_t threshold);
};

inline constexpr TrafficRule kLessRule{
    settings::setting::LessDownloaded,
    settings::setting::LessUploaded,
    settings::setting::LessByteWere,
    settings::setting::LessNotSecs,
    settings::setting::LessIsPlay,
    settings::setting::LessPlayWavFile,
    settings::setting::LessAction,
    settings::setting::LessDisplayMessage,
    [](std::int64_t amount, std::int64_t threshold) { return amount <= threshold; },
};

inline constexpr TrafficRule kMoreRule{
    settings::setting::MoreDownloaded,
    settings::setting::MoreUploaded,
    settings::setting::MoreByteWere,
    settings::setting::MoreNotSecs,
    settings::setting::MoreIsPlay,
    settings::setting::MorePlayWavFile,
    settings::setting::MoreAction,
    settings::setting::MoreDisplayMessage,
    [](std::int64_t amount, std::int64_t threshold) { return amount >= threshold; },
};

}  // namespace alerts
