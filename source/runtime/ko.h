/* The ko runtime: everything. */
#ifndef KO_H
#define KO_H

#include <runtime/ko_base.h>
#include <runtime/ko_buffer.h>
#include <runtime/ko_dict.h>
#include <runtime/ko_module.h>
#include <runtime/ko_object.h>
#include <runtime/ko_store.h>
#include <runtime/ko_string.h>
#include <runtime/ko_time.h>
#include <runtime/ko_vector.h>
#if defined( __cplusplus )
#include <runtime/ko_ref.h>
#endif

#endif
