// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace bc {

/// Lists for the results of queries that may run inside one another (a blast sets off another
/// blast). They keep their memory, so that queries cost no allocation once warm.
template <class T>
class ScratchLists {
  public:
    /// An empty list for as long as the lease lives. Leases end in reverse order.
    class Lease {
      public:
        explicit Lease(ScratchLists& lists) : lists_(lists) {
            if (lists_.used_ == lists_.lists_.size())
                lists_.lists_.push_back(std::make_unique<std::vector<T>>());
            list_ = lists_.lists_[lists_.used_++].get();
            list_->clear();
        }
        ~Lease() { --lists_.used_; }
        Lease(const Lease&) = delete;
        Lease& operator=(const Lease&) = delete;

        std::vector<T>& operator*() const { return *list_; }
        std::vector<T>* operator->() const { return list_; }

      private:
        ScratchLists& lists_;
        std::vector<T>* list_;
    };

  private:
    std::vector<std::unique_ptr<std::vector<T>>> lists_;
    std::size_t used_ = 0;
};

}  // namespace bc
