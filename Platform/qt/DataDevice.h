#pragma once

#include <QIODevice>
#include <utility>

#include "Foundation/Data.h"

namespace platform {

/// Bytes as a device to read from: only what is read is fetched from where the bytes rest. One thread at a time.
class DataDevice final : public QIODevice {
 public:
  /// Open at once.
  explicit DataDevice(foundation::Data data);

  [[nodiscard]] qint64 size() const override { return static_cast<qint64>(m_data.size()); }

 protected:
  qint64 readData(char* bytes, qint64 length) override;
  qint64 writeData(const char* bytes, qint64 length) override;

 private:
  foundation::Data m_data;
};

}  // namespace platform
