#include "comments/CommentPages.h"

namespace sv {

CommentPages::~CommentPages() = default;

}  // namespace sv
