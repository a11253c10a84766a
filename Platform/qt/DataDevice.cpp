#include "Platform/qt/DataDevice.h"

#include <algorithm>

namespace platform {

DataDevice::DataDevice(foundation::Data data) : m_data(std::move(data)) { open(QIODevice::ReadOnly); }

qint64 DataDevice::readData(char* bytes, qint64 length) {
  const auto part = m_data.part(static_cast<std::size_t>(pos()), static_cast<std::size_t>(length));
  std::copy(part.begin(), part.end(), bytes);
  return static_cast<qint64>(part.size());
}

qint64 DataDevice::writeData(const char* /*bytes*/, qint64 /*length*/) { return -1; }

}  // namespace platform
