#include "Defaults/Object.h"

#include <algorithm>

namespace defaults {

bool Object::isDeeperThan(int limit) const {
  const auto isTooDeep = [limit](const Object& element) { return element.isDeeperThan(limit - 1); };
  if (const auto* list = as<List>()) return limit == 0 || std::ranges::any_of(*list, isTooDeep);
  if (const auto* map = as<Map>()) return limit == 0 || std::ranges::any_of(*map, isTooDeep, &Map::value_type::second);
  return false;
}

}  // namespace defaults
