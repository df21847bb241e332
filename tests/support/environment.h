#pragma once

#include <cstdlib>
#include <optional>
#include <string>

#include "storage/system_text.h"

namespace vorbano::test {

/// Sets a variable of the environment (UTF-8; null takes it away) and puts it back with this object's end.
class Variable {
  public:
    Variable(const char* name, const char* value) : name_(name), before_(setting(name)) { set(value); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { set(before_ ? before_->c_str() : nullptr); }

  private:
    void set(const char* value) {
#ifdef _WIN32
        ::_wputenv_s(pathOf(name_).c_str(), pathOf(value == nullptr ? "" : value).c_str());
#else
        if (value == nullptr) {
            ::unsetenv(name_);
        } else {
            ::setenv(name_, value, 1);
        }
#endif
    }
    const char* name_;
    std::optional<std::string> before_;
};

}  // namespace vorbano::test
