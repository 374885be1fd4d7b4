box1=5;
   box3=box1;
   box4=box3*2;
   box2=box4;
box6=box2
