function y = f(x)
% F  Computes, by commas,
%   what, it must
%

% not this
for i=1:3, s='for'; end
