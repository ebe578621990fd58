#pragma once

namespace tgx {

/// A non-owning pointer that becomes null when its target is deleted. Takes three words and no allocation:
/// the refs to one target form a linked list, whose head is a field of the target. The target's class
/// specialises attach, which needs the definition of the class, and detaches all refs in its destructor.
template<class Target>
class WeakRef {
public:
    WeakRef() = default;
    WeakRef(Target* pointee) { attach(pointee); }
    WeakRef(const WeakRef& other) { attach(other.target); }
    WeakRef& operator=(const WeakRef& other) { return *this = other.target; }
    WeakRef& operator=(Target* other)
    {
        if (target != other) {
            detach();
            attach(other);
        }
        return *this;
    }
    ~WeakRef() { detach(); }

    operator Target*() const { return target; }
    Target* operator->() const { return target; }
    Target* get() const { return target; }

private:
    friend Target;
    void attach(Target* to);
    void detach() { unlink(); }

    void link(Target* to, WeakRef*& head)
    {
        target = to;
        next = head;
        if (next)
            next->place = &next;
        place = &head;
// A ref on the stack removes itself before its lifetime ends, but GCC cannot see that.
#if defined(__GNUC__) && !defined(__clang__) && __GNUC__ >= 12
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdangling-pointer"
#endif
        head = this;
#if defined(__GNUC__) && !defined(__clang__) && __GNUC__ >= 12
#pragma GCC diagnostic pop
#endif
    }
    void unlink()
    {
        if (!target)
            return;
        *place = next;
        if (next)
            next->place = place;
        target = nullptr;
    }

    Target* target = nullptr;
    WeakRef* next = nullptr;
    WeakRef** place = nullptr; // the pointer that points to this ref
};

} // namespace tgx
