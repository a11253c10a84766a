#include <gtest/gtest.h>

#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QUrl>
#include <memory>

namespace {

// With this the engine collects its garbage whenever it takes memory: what it lets go of too early is gone at once.
class EagerCollection final {
 public:
  EagerCollection() { qputenv(variable, "1"); }
  EagerCollection(const EagerCollection&) = delete;
  EagerCollection& operator=(const EagerCollection&) = delete;
  ~EagerCollection() { qunsetenv(variable); }

 private:
  static constexpr auto variable = "QV4_MM_AGGRESSIVE_GC";
};

TEST(Symbol, KeepsItsColorWhileGarbageIsCollected) {
  const EagerCollection eager;
  QQmlEngine engine;
  QQmlComponent component(&engine);
  component.setData("import Quillmonger.Resources\nSymbol { name: 'photo'; size: 16; color: '#e07a5f' }", {});

  const std::unique_ptr<QObject> symbol(component.create());
  ASSERT_NE(symbol, nullptr) << component.errorString().toStdString();
  EXPECT_EQ(symbol->property("source").toUrl(), QUrl("image://symbol/photo?#e07a5f"));

  symbol->setProperty("color", QColor(17, 204, 3));
  EXPECT_EQ(symbol->property("source").toUrl(), QUrl("image://symbol/photo?#11cc03"));
}

}  // namespace
