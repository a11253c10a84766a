#include "Quillmonger/update/feed/SignedFeed.h"

#include <gtest/gtest.h>
#include <nettle/eddsa.h>

#include <string>

#include "Defaults/Base64.h"

namespace {

using quillmonger::PublicKey;
using quillmonger::signedPart;

class SignedFeed : public testing::Test {
 protected:
  using Secret = std::array<std::uint8_t, ED25519_KEY_SIZE>;

  static PublicKey publicHalf(const Secret& secret) {
    PublicKey half{};
    ed25519_sha512_public_key(half.data(), secret.data());
    return half;
  }
  [[nodiscard]] std::string signatureOf(const std::string& text) const {
    defaults::Bytes signature(ED25519_SIGNATURE_SIZE);
    ed25519_sha512_sign(key.data(), secret.data(), text.size(), reinterpret_cast<const std::uint8_t*>(text.data()),
                        signature.data());
    return "<!-- ed25519 " + defaults::encodeBase64(signature) + " -->\n";
  }

  Secret secret{1, 2, 3};
  PublicKey key = publicHalf(secret);
  std::string content = "<rss/>\n";
  std::string feed = content + signatureOf(content);
};

TEST_F(SignedFeed, IsTakenWhenTheKeyHasSignedIt) { EXPECT_EQ(signedPart(feed, key), content); }

TEST_F(SignedFeed, IsRefusedWhenAnotherKeyHasSignedIt) { EXPECT_FALSE(signedPart(feed, publicHalf({9})).has_value()); }

TEST_F(SignedFeed, IsRefusedWhenAnyByteIsAnother) {
  for (std::size_t index = 0; index < feed.size(); ++index) {
    auto changed = feed;
    changed[index] ^= 1;
    EXPECT_FALSE(signedPart(changed, key).has_value()) << index;
  }
}

TEST_F(SignedFeed, IsRefusedWhereverItIsCut) {
  for (std::size_t length = 0; length < feed.size(); ++length)
    EXPECT_FALSE(signedPart(std::string_view(feed).substr(0, length), key).has_value()) << length;
}

TEST_F(SignedFeed, IsRefusedWithAnythingAfterTheSignature) {
  EXPECT_FALSE(signedPart(feed + "<evil/>\n", key).has_value());
  EXPECT_FALSE(signedPart(feed + "\n", key).has_value());
}

TEST_F(SignedFeed, IsRefusedWithAnythingBetweenContentAndSignature) {
  EXPECT_FALSE(signedPart(content + "<evil/>\n" + signatureOf(content), key).has_value());
}

TEST_F(SignedFeed, IsRefusedWithAKeyOfNothing) { EXPECT_FALSE(signedPart(feed, PublicKey{}).has_value()); }

TEST_F(SignedFeed, IsRefusedWhenItIsTooLong) {
  const std::string longContent(quillmonger::feedSizeLimit, '\n');

  EXPECT_FALSE(signedPart(longContent + signatureOf(longContent), key).has_value());
}

TEST(PublicKey, Is32BytesInBase64) {
  EXPECT_TRUE(quillmonger::parsePublicKey("11qYAYKxCrfVS/7TyWQHOg7hcvPapiMlrwIaaPcHURo=").has_value());
  EXPECT_FALSE(quillmonger::parsePublicKey("").has_value());
  EXPECT_FALSE(quillmonger::parsePublicKey("AAAA").has_value());
  EXPECT_FALSE(quillmonger::parsePublicKey("no base64 at all, whatever it might decode to").has_value());
}

// RFC 8032, section 7.1, test 2: the scheme is the one that other tools sign with.
TEST(PublicKey, IsThatOfTheCommonScheme) {
  const auto key = quillmonger::parsePublicKey("PUAXw+hDiVqStwqnTRt+vJyYLM8uxJaMwM1V8Sr0Zgw=").value();
  const auto signature = defaults::decodeBase64(
                             "kqAJqfDUyrhyDoILX2QlQKKye1QWUD+Ps3YiI+vbadoIWsHkPhWZbkWPNhPQ8R2MOHsurrQwKu6wDSkWErsM"
                             "AA==")
                             .value();
  const std::uint8_t message = 0x72;

  EXPECT_EQ(ed25519_sha512_verify(key.data(), 1, &message, signature.data()), 1);
}

}  // namespace
