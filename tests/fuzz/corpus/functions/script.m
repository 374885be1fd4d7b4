%{
for
%}
x=a';if x(end), y="end";
