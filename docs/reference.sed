# What the reference needs and a reader of a header does not: each file is one of it, so that what stands outside of
# classes is looked at too, and handles and lists of an interface say so; a table's macro is none
# of its functions. No line moves.
s|^using \([A-Za-z]*\)_var = ZFXHandle<.*|& ///< A handle of \1.|
s|^using \(ZFXListVal\([A-Za-z_]*\)\) = .*|& ///< A list of \2.|
s|^#define [A-Z_]*(name) name,$||
$a /// @file
