#include <gtest/gtest.h>

#include "design/Messages.h"
#include "design/OutcomeMessage.h"
#include "engine/CurveLoading.h"
#include "engine/Outcome.h"

namespace orvik {
namespace {

TEST(Messages, AValueReplacesItsPlaceholder) {
  EXPECT_EQ(Sentence(Message{MessageId::VolumeAboveAxis, "7"}),
            "Normalized storage volume is greater than 7");
  EXPECT_EQ(Sentence(Message{MessageId::EfficiencyBelowCurves, "50"}),
            "Design efficiency is less than 50%.");
  EXPECT_EQ(Sentence(Message{MessageId::NoCurve, "60abc"}),
            "Unable to extract curve data for E=60abc");
  EXPECT_EQ(Sentence(Message{MessageId::CurveFolderMissing, "C:\\x\\"}),
            "Can't find data path:\r\nC:\\x\\");
}

TEST(Messages, AValueIsNotSearchedForPlaceholders) {
  EXPECT_EQ(Sentence(Message{MessageId::CurveFileMissing, "{}"}), "Can't find data for {}");
}

TEST(Messages, NoneIsEmpty) {
  EXPECT_EQ(Sentence(Message{}), "");
  EXPECT_EQ(HelpTopic(MessageId::None), 0);
}

TEST(Messages, RangeAndLocationHaveHelpTopicOneAndNoOtherHasOne) {
  EXPECT_EQ(HelpTopic(MessageId::RateBelowAxis), 1);
  EXPECT_EQ(HelpTopic(MessageId::PlacedPointOffCurves), 1);
  EXPECT_EQ(HelpTopic(MessageId::VolumeAboveCurve), 1);
  EXPECT_EQ(HelpTopic(MessageId::NoCurve), 0) << "there is no page about it";
  EXPECT_EQ(HelpTopic(MessageId::Success), 0);
  EXPECT_EQ(HelpTopic(MessageId::BasinAreaEmpty), 0);
}

TEST(OutcomeMessage, LimitsOfTheCurvesAreShownInSinglePrecision) {
  const float E = 50.1F;  // as a double 50.0999984741211
  EXPECT_EQ(MessageOf({OutcomeKind::EfficiencyBelowCurves, E}).value, "50.1");
  EXPECT_EQ(MessageOf({OutcomeKind::VolumeAboveAxis, 7.25}).value, "7.25");
  EXPECT_EQ(MessageOf({OutcomeKind::RateAboveAxis, 0.4}).value, "0.4");
}

TEST(OutcomeMessage, OnlyAMissingFolderOrFileOfCurvesHasAMessage) {
  EXPECT_EQ(Sentence(MessageOf(LoadOutcome::FolderMissing, "/x/", 23)),
            "Can't find data path:\r\n/x/");
  EXPECT_EQ(Sentence(MessageOf(LoadOutcome::FileMissing, "/x/", 23)), "Can't find data for Tampa");
  EXPECT_EQ(MessageOf(LoadOutcome::Unreadable, "/x/", 23), Message{});
  EXPECT_EQ(MessageOf(LoadOutcome::Loaded, "/x/", 23), Message{});
}

}  // namespace
}  // namespace orvik
