for box2=1:3
   box3=box2*2;
end;
box4=box3;
box5=box4
