% The first plot of a run is led in by this call, which only MATLAB knows.
function system_dependent (varargin)
end
