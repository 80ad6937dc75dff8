# Makes tests out of a manual: each block of ```cpp (with the word in `kind` behind it, if any) becomes one test.
#
#     expression;   // → text          the expression, written by Shown(), gives the text
#     expression;   // → throws Class  it throws that
#
# Any other line stands in the test as it is. Failures name the manual's line.
BEGIN { fence = kind == "" ? "```cpp" : "```cpp " kind }
$0 == fence { inside = 1; printf "TEST_F(%s, Line%d) {\n", fixture, NR; next }
/^```/ && inside { inside = 0; print "}\n"; next }
!inside { next }
{ printf "#line %d \"%s\"\n", NR, FILENAME }
match($0, /; *\/\/ → /) {
  expression = substr($0, 1, RSTART - 1)
  wanted = substr($0, RSTART + RLENGTH)
  if (wanted ~ /^throws /) printf "EXPECT_THROW(%s, %s);\n", expression, substr(wanted, 8)
  else printf "EXPECT_EQ(Shown(%s).toStdString(), R\"~(%s)~\");\n", expression, wanted
  next
}
{ print }
