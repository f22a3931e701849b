// Finds the place of a name on the page that lists all names.
#include "shell/help_topic.h"

#include <algorithm>
#include <iterator>

#include "engine/characters.h"

namespace calquo {

std::string helpTopicOf(std::string_view name) {
    std::string topic = "names.html#name-";
    std::ranges::transform(name, std::back_inserter(topic), lowerCase);
    return topic;
}

}  // namespace calquo
