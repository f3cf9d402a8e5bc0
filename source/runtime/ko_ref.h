/* KoRef: an owning reference for C++ callers. */
#ifndef KO_REF_H
#define KO_REF_H

#include <runtime/ko_module.h>
#include <runtime/ko_object.h>

/**
 * Owns one reference of a handle, and drops it at its end. Move only; there is no conversion from or to a handle that
 * does not show in the text: Adopt takes a reference over, Share adds one, Get lends the handle, Leak gives it away.
 *
 *     auto name = KoRef<KoString>::Adopt( tolmoMessageHeaderName( header ) );
 *     koStringLength( name.Get() );
 */
template <class Handle>
class KoRef {
public:
    KoRef() = default;
    KoRef( KoRef &&other ) noexcept : handle( other.handle ) { other.handle = nullptr; }
    KoRef &operator=( KoRef &&other ) noexcept
    {
        if ( this != &other ) {
            const Handle old = handle;
            handle = other.Leak();
            if ( old ) {
                ko___Release( reinterpret_cast<KoObj>( old ) );
            }
        }
        return *this;
    }
    KoRef( const KoRef & ) = delete;
    KoRef &operator=( const KoRef & ) = delete;
    ~KoRef()
    {
        if ( handle ) {
            ko___Release( reinterpret_cast<KoObj>( handle ) );
        }
    }

    /** Takes the caller's reference over. Null is allowed. */
    [[nodiscard]] static KoRef Adopt( Handle taken )
    {
        KoRef ref;
        ref.handle = taken;
        return ref;
    }
    /** Adds a reference of its own. Null is allowed. */
    [[nodiscard]] static KoRef Share( Handle shared )
    {
        if ( shared ) {
            ko___Retain( reinterpret_cast<KoObj>( shared ) );
        }
        return Adopt( shared );
    }

    /** The handle, lent: it is valid as long as this reference. */
    [[nodiscard]] Handle Get() const { return handle; }
    /** Gives the reference to the caller. */
    [[nodiscard]] Handle Leak()
    {
        const Handle leaked = handle;
        handle = nullptr;
        return leaked;
    }
    /** The address of the handle, for mutators, which may replace it. */
    [[nodiscard]] Handle *Address() { return &handle; }
    explicit operator bool() const { return handle != nullptr; }

private:
    Handle handle = nullptr;
};

/** Starts a module for the length of a scope. */
class KoModuleScope {
public:
    explicit KoModuleScope( KoModule started ) : module( started ) { koModuleStart( module ); }
    KoModuleScope( const KoModuleScope & ) = delete;
    KoModuleScope &operator=( const KoModuleScope & ) = delete;
    ~KoModuleScope() { koModuleStop( module ); }

private:
    KoModule module;
};

#endif
