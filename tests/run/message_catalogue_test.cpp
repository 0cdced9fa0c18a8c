#include "platform/message_catalogue.h"

#include "common/messages.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

TEST(MessageCatalogue, HasATextOfItsOwnForEachOfTheFiftyNineKeys) {
  ASSERT_TRUE(CMsgDll::Load());
  std::set<std::string> texts;
  for (const std::string_view key : kMessageKeys) {
    const std::string text = LoadStr(std::string(key).c_str());
    EXPECT_GT(text.size(), 60U) << key;
    EXPECT_EQ(text.find("IDS_"), std::string::npos) << key;
    EXPECT_TRUE(text.ends_with('.')) << key;
    texts.insert(text);
  }
  EXPECT_EQ(texts.size(), 59U);
  CMsgDll::Free();
}

TEST(MessageCatalogue, TextsHaveAPlaceholderWhereTheyTakeAnArgumentAndNoOtherPercentSign) {
  ASSERT_TRUE(CMsgDll::Load());
  for (const std::string_view key : kMessageKeys) {
    std::string text = LoadStr(std::string(key).c_str());
    const bool takesArgument =
        key == "IDS_S2KV8_OFFSET_REPLACE_GLOBAL" || key == "IDS_S2KV8_NOCONVERT_VEHICLE";
    const std::size_t place = text.find("%s");
    EXPECT_EQ(place != std::string::npos, takesArgument) << key;
    if (takesArgument) {
      text.erase(place, 2);
    }
    EXPECT_EQ(text.find('%'), std::string::npos) << key;
  }
  CMsgDll::Free();
}

TEST(MessageCatalogue, LoadedTwiceStaysLoaded) {
  ASSERT_TRUE(CMsgDll::Load());
  const auto loadStr = LoadStr;
  EXPECT_TRUE(CMsgDll::Load());
  EXPECT_EQ(LoadStr, loadStr);
  CMsgDll::Free();
}

TEST(MessageCatalogue, FreedGivesTheBuiltInText) {
  CMsgDll::Load();
  EXPECT_TRUE(CMsgDll::Free());
  EXPECT_TRUE(CMsgDll::Free());
  EXPECT_STREQ(LoadStr("IDS_S2KV8_Not_Convert"), "Error : DLL is not loaded. check message dll!");
}

TEST(MessageCatalogue, UnknownAndMissingKeysDoNoHarm) {
  ASSERT_TRUE(CMsgDll::Load());
  EXPECT_STREQ(LoadStr("IDS_S2KV8_Nothing"), "The message catalogue has no text for this message.");
  EXPECT_STREQ(LoadStr(nullptr), "");
  CMsgDll::Free();
}

}  // namespace
}  // namespace s2k2ngt
